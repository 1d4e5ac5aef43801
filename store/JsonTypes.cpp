#include <MaltoConfiguration/store/JsonTypes.h>

#include <QMutex>

#include <deque>
#include <unordered_map>

namespace MtConf {

namespace {

constexpr quint32 sFirstId = 10; // after those of ConfValue::ConfType

struct Registry
{
    QMutex mutex; // the first use of a type may be on any thread
    std::unordered_map<std::type_index, quint32> ids;
    std::deque<JsonOperations> operations; // whose elements keep their addresses
};

Registry &registry()
{
    static Registry sRegistry;
    return sRegistry;
}

} // namespace

quint32 registerJsonType(const std::type_index &type, const JsonOperations &operations)
{
    Registry &types = registry();
    const QMutexLocker locker(&types.mutex);
    const auto known = types.ids.find(type);
    if (known != types.ids.end())
        return known->second;
    types.operations.push_back(operations);
    const auto id = static_cast<quint32>(sFirstId + types.operations.size() - 1);
    types.ids.emplace(type, id);
    return id;
}

const JsonOperations *jsonOperations(quint32 type)
{
    if (type < sFirstId)
        return nullptr;
    Registry &types = registry();
    const QMutexLocker locker(&types.mutex);
    return type - sFirstId < types.operations.size() ? &types.operations[type - sFirstId] : nullptr;
}

} // namespace MtConf
