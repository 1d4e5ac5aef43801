#include <MaltoConfiguration/store/JsonTypes.h>

#include <QMutex>

#include <algorithm>
#include <deque>
#include <list>

namespace MtConf {

namespace {

constexpr quint32 sFirstId = 10; // after those of ConfValue::ConfType

struct Use
{
    const JsonTypeUse *owner; ///< null if it has ended
    const std::type_info *type;
    JsonOperations operations;
};

struct Type
{
    QByteArray name;     ///< a copy: that of the type is gone when its library is unloaded
    std::list<Use> uses; ///< at least one; elements keep their addresses
};

struct Registry
{
    QMutex mutex; // the first use of a type may be on any thread
    std::deque<Type> types;
};

/// Never destroyed, like the store of the process.
Registry &registry()
{
    static Registry *const sRegistry = new Registry;
    return *sRegistry;
}

bool isOfType(const Type &known, const std::type_info &type)
{
    if (known.name != type.name())
        return false;
    const Use &use = known.uses.front();
    return !use.owner || *use.type == type;
}

/// Adds the use of a type, and returns the number of the type.
quint32 addUse(const Use &use)
{
    Registry &all = registry();
    const QMutexLocker locker(&all.mutex);
    auto known = std::find_if(all.types.begin(), all.types.end(),
                              [&](const Type &type) { return isOfType(type, *use.type); });
    if (known == all.types.end())
        known = all.types.insert(known, Type{use.type->name(), {}});
    known->uses.remove_if([](const Use &other) { return !other.owner; });
    known->uses.push_back(use);
    return static_cast<quint32>(sFirstId + (known - all.types.begin()));
}

} // namespace

JsonTypeUse::JsonTypeUse(const std::type_info &type, const JsonOperations &operations)
    : mId(addUse({this, &type, operations}))
{
}

JsonTypeUse::~JsonTypeUse()
{
    Registry &all = registry();
    const QMutexLocker locker(&all.mutex);
    std::list<Use> &uses = all.types[mId - sFirstId].uses;
    const auto own = std::find_if(uses.begin(), uses.end(),
                                  [this](const Use &use) { return use.owner == this; });
    if (uses.size() > 1)
        uses.erase(own);
    else
        own->owner = nullptr;
}

const JsonOperations *jsonOperations(quint32 type)
{
    if (type < sFirstId)
        return nullptr;
    Registry &all = registry();
    const QMutexLocker locker(&all.mutex);
    return type - sFirstId < all.types.size() ? &all.types[type - sFirstId].uses.front().operations
                                              : nullptr;
}

} // namespace MtConf
