#pragma once

#include "MaltoConfiguration/store/StoreObserver_p.h"

#include <QHash>
#include <QString>

#include <memory>

namespace MtConf {

/// Where the values of the store come from, as far as the store itself does not keep it. Observes
/// the store from its construction on.
class ValueOrigins
{
public:
    enum class Origin {
        Default,           ///< the default value
        Changed,           ///< changed on this computer
        ConfigurationFile, ///< loaded from a configuration file of the host
        Elsewhere,         ///< merged from another process or another copy of the configuration
        Locked             ///< fixed by an administrator
    };

    ValueOrigins();
    Q_DISABLE_COPY(ValueOrigins)

    /// Returns where the present value of `key` comes from. What was changed in an earlier run of
    /// the program counts as changed here.
    Origin originOf(const QString &key) const;

    /// While it exists, changes come from a configuration file.
    class ConfigurationFile
    {
    public:
        /// `origins` may be null, and may be destroyed before this object.
        explicit ConfigurationFile(ValueOrigins *origins);
        ~ConfigurationFile();
        Q_DISABLE_COPY(ConfigurationFile)

    private:
        const std::shared_ptr<int> mFiles;
    };

private:
    void onChange(const ConfChange &change);

    QHash<QString, Origin> mOrigins; // of keys that are not simply changed here
    const std::shared_ptr<int> mFiles = std::make_shared<int>(0); // that are being loaded
    const StoreObserver mObserver;
};

} // namespace MtConf
