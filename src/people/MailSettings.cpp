#include "people/MailSettings.h"

#include "app/globals.h"
#include "app/myPrefs.h"
#include "platform/Services.h"
#include "support/NumberKeyRule.h"

namespace people {

namespace {

const QString kPasswordKey = QStringLiteral("mail password");

// The password of this run when no secret store takes it.
QString &sessionPassword()
{
    static QString password;
    return password;
}

} // namespace

MailSettings MailSettings::load(const myPrefs &prefs)
{
    MailSettings s;
    s.server = prefs.prEmailServer;
    s.user = prefs.prEmailUser;
    s.port = QString::number(prefs.prEmailPort);
    s.auth = prefs.prEmailAuth;
    const platform::SecretStore::ReadResult stored = platform::secrets().readSecret(kPasswordKey);
    s.sessionOnly = stored.status == platform::SecretStore::Status::NoAnswer;
    if (stored.status == platform::SecretStore::Status::Found)
        s.password = stored.secret;
    else if (!sessionPassword().isEmpty())
        s.password = sessionPassword();
    else
        s.password = prefs.prEmailPW; // written by an older version; moved to the store on the next save
    return s;
}

QString MailSettings::validateEntries() const
{
    if (server.trimmed().isEmpty())
        return QStringLiteral("Please enter the SMTP server info.");
    if (user.trimmed().isEmpty())
        return QStringLiteral("Please enter a valid user name.");
    if (!gIsEmailValid(user.trimmed()))
        return QStringLiteral("The email address you entered does not appear to be valid.");
    if (auth && password.isEmpty())
        return QStringLiteral("Please enter the email password.");
    return {};
}

quint16 MailSettings::portNumber() const
{
    return quint16(limitValueRange(support::numberFieldValue(port.trimmed()), 0, 65535));
}

void MailSettings::moveOldPassword(myPrefs &prefs)
{
    if (prefs.prEmailPW.isEmpty())
        return;
    const QString old = prefs.prEmailPW;
    prefs.prEmailPW.clear();
    prefs.prefsDirty = true;
    if (!platform::secrets().writeSecret(kPasswordKey, old))
        sessionPassword() = old;
}

bool MailSettings::save(myPrefs &prefs) const
{
    prefs.prEmailServer = server.trimmed();
    prefs.prEmailUser = user.trimmed();
    prefs.prEmailPW.clear();
    prefs.prEmailAuth = auth;
    prefs.prEmailPort = portNumber();
    prefs.prefsDirty = true;

    // Kept exactly: blanks at either end belong to the password.
    const QString &secret = password;
    platform::SecretStore &store = platform::secrets();
    const bool kept = secret.isEmpty() ? store.deleteSecret(kPasswordKey) : store.writeSecret(kPasswordKey, secret);
    sessionPassword() = kept ? QString() : secret;
    return kept;
}

QString MailSettings::sessionOnlyNote()
{
    return QStringLiteral("No password store answers on this computer: the password is kept only until "
                          "Tallyline Baseball quits.");
}

} // namespace people
