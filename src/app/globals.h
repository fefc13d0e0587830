#pragma once

// Module globals: the program's shared state, fixed lists and the small
// routines every screen uses.

#include "platform/Printing.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <optional>

class QFontMetricsF;
class myPrefs;
class myDB;

// The settings and the open season. Set by App::Event_Open (and replaced on
// a season switch); tests point them at objects of their own.
extern myPrefs *gPrefs;
extern myDB *gData;

extern QStringList gStateList;
extern QStringList gCountryList;
extern QString gActivities;
extern std::array<QString, 10> gDrills;
// The blank forms found at open: each file's name and path. Their pictures
// are decoded by the forms window when it shows them, not at start.
extern QStringList gFormNames;
extern QStringList gFormFiles;
// The last confirmed page set-up in PrinterSetup's text form; empty until
// the user confirmed a page set-up dialog. Kept for the session only.
extern QString gPrinterSettings;
extern bool gIsAutoFillMode;
extern const QColor TLThemeColorLight;

void gCreateGlobalLists();

// A folder's save-info text (its absolute path) and back; parseGSI gives
// empty text for empty text.
QString createGSI(const QString &folder);
QString parseGSI(const QString &text);

// The standard message dialog: 0 action, 1 cancel, 2 alternate.
std::uint8_t gShowMsgDlog(const QString &message, const QString &explanation, const QString &actionCaption,
                          const QString &altCaption = {});
// A plain one-line message box.
void gMsgBox(const QString &text);
// A notice with its explanation and one OK button.
void gNotice(const QString &message, const QString &explanation);
// The system's alert sound.
void gBeep();

// Fills `setup` with the remembered page set-up, or asks with the page
// set-up dialog when there is none or `forceDialog` is set. On cancel
// `setup` becomes empty and the caller doesn't print.
void gGetPrinterSetup(std::optional<platform::PrinterSetup> &setup, bool forceDialog);
// Vertical positions 0, step, 2*step ... while another step still fits the
// printable height; never empty.
QList<int> gCreateVertPrinterPts(const platform::PrinterSetup &setup, int step);

bool gIsEmailValid(const QString &text);
// Fits `text` into `maxWidth`, ending it in "..." when it has to be cut.
QString TruncateStr(const QFontMetricsF &metrics, const QString &text, qreal maxWidth);
// "7:05 PM" -> {"7", "05", "PM"}; empty text and "---" read as "0:00 PM".
std::array<QString, 3> gParseTimeStr(const QString &text);
inline int gBool2Int(bool flag)
{
    return flag ? 1 : 0;
}
// True for Return (13) and Enter (3).
bool gIsEnterKey(const QString &key);
// Strip leading / trailing characters found (case-insensitively) in `set`.
QString LTrim(const QString &text, const QString &set);
QString RTrim(const QString &text, const QString &set);
int limitValueRange(int value, int minimum, int maximum);

// The program's resource folder: "Resources" beside the executable's folder.
QString gResourceFolder();
// Lists the forms in the resource folder; only each file's header is read.
void loadFormPics();
