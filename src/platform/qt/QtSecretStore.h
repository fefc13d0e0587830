#pragma once

#include "platform/SecretStore.h"

namespace platform::qt {

// The desktop's secret store through QtKeychain: the Secret Service or
// KWallet on Linux, the Keychain on macOS, the Credential Store on Windows.
// Each call waits for the store's answer on a local event loop, at most a
// few seconds, so a store that never answers counts as none. The plain-file
// fallback QtKeychain offers stays off: a secret goes to the store or
// nowhere.
class QtSecretStore final : public SecretStore
{
public:
    ReadResult readSecret(const QString &key) override;
    bool writeSecret(const QString &key, const QString &secret) override;
    bool deleteSecret(const QString &key) override;
};

} // namespace platform::qt
