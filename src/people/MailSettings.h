#pragma once

#include <QString>

class myPrefs;

namespace people {

// The mail account settings the coach keeps: server, user name, password,
// port and whether the server asks for the password. Nothing in the program
// sends mail with them; every message leaves through the mail program.
//
// The password never goes into the preference file, whose password field
// stays empty: it lives in the desktop's secret store. Where no store
// answers, it is kept in memory until the program quits.
struct MailSettings
{
    QString server;
    QString user;
    QString password;
    QString port; // as typed
    bool auth = false;
    // Set by load() when no secret store answered: the password lasts
    // only until the program quits.
    bool sessionOnly = false;

    // The settings as stored, with the password from the secret store (or
    // the session, or a preference file of an older version).
    static MailSettings load(const myPrefs &prefs);

    // The first failure's message, or empty text when the entries may be kept.
    QString validateEntries() const;

    // Keeps the trimmed entries in `prefs` (marking it dirty) and the
    // password in the secret store. False when no store answered and the
    // password is kept for this session only.
    bool save(myPrefs &prefs) const;

    // A password that an older version left in the preference file moves to
    // the secret store (or, with none answering, to this session), and the
    // file's field is emptied. Run once at start.
    static void moveOldPassword(myPrefs &prefs);

    // The port as stored: the number the text begins with, within 0..65535.
    quint16 portNumber() const;

    // Said in the settings window where no secret store answers.
    static QString sessionOnlyNote();
};

} // namespace people
