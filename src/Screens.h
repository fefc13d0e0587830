#pragma once

// Registers every window of the program in the screen directory under its
// ScreenId. Called once by main() before the start screen shows, and by the
// tests that walk every window.
void registerScreens();
