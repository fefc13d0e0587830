#pragma once

#include <QString>

namespace platform {

// The desktop's store of secrets (the keyring, the keychain). Secrets never
// go into the program's own files. A store may be missing or locked, as on a
// bare desktop or a build machine: every call then says it got no answer,
// and the caller keeps the secret for the session only.
class SecretStore
{
public:
    enum class Status {
        Found,    // the secret was read
        Missing,  // the store answered: no secret under that key
        NoAnswer, // no store, a locked one, or it refused
    };
    struct ReadResult
    {
        Status status = Status::NoAnswer;
        QString secret;
    };

    virtual ~SecretStore() = default;
    virtual ReadResult readSecret(const QString &key) = 0;
    // True when the store kept the secret.
    virtual bool writeSecret(const QString &key, const QString &secret) = 0;
    // True when the store answered (whether or not there was a secret).
    virtual bool deleteSecret(const QString &key) = 0;
};

} // namespace platform
