#include "ValueOrigins_p.h"

#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/store/ConfStorage.h>

namespace MtConf {

ValueOrigins::ValueOrigins()
    : mObserver(ConfStorage::instance(), [this](const ConfChange &change) { onChange(change); })
{
}

ValueOrigins::Origin ValueOrigins::originOf(const QString &key) const
{
    const ConfStorage *const store = ConfStorage::instance();
    if (store->isLocked(key))
        return Origin::Locked;
    if (store->isEqualToDefault(key))
        return Origin::Default;
    return mOrigins.value(key, Origin::Changed);
}

void ValueOrigins::onChange(const ConfChange &change)
{
    if (*mFiles > 0)
        mOrigins.insert(change.key, Origin::ConfigurationFile);
    else if (change.cause == ConfChange::Cause::Loaded && ConfStorage::instance()->mLocalLoaded)
        mOrigins.insert(change.key, Origin::Elsewhere);
    else
        mOrigins.remove(change.key);
}

ValueOrigins::ConfigurationFile::ConfigurationFile(ValueOrigins *origins)
    : mFiles(origins ? origins->mFiles : nullptr)
{
    if (mFiles)
        ++*mFiles;
}

ValueOrigins::ConfigurationFile::~ConfigurationFile()
{
    if (mFiles)
        --*mFiles;
}

} // namespace MtConf
