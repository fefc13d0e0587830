#pragma once

// Registers every window of the program in the screen directory under its
// ScreenId. Called once by main() before the start screen shows, and by the
// tests that walk every window.
void registerScreens();

class App;

// Joins the opened program's parts: the backup timer opens the backup
// window (once per due tick) and the mail password moves out of an older
// preference file. Called once by main() after App::Event_Open succeeded.
void connectProgram(App &app);
