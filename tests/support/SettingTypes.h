#pragma once

#include <MaltoConfiguration/store/JsonForm.h>

#include <QObject>

#include <vector>

// Types of a host. A target that includes this header has it among its sources, for moc.

namespace Settings {

Q_NAMESPACE

enum class WrapMode : int { None, Word, Anywhere = 7 };
Q_ENUM_NS(WrapMode)

enum class Scale : quint8 { Both = 3, Width = 1, Height = 2, Breadth = Width };
Q_ENUM_NS(Scale)

enum Edge { Left = 1, Right = 2 };
Q_DECLARE_FLAGS(Edges, Edge)
Q_FLAG_NS(Edges)

enum class Small : quint8 { First, Last = 255 };
enum class Large : quint64 { Last = 0xffffffffffffffff };

struct Margins
{
    int left = 1, right = 2;
    bool operator==(const Margins &other) const
    {
        return left == other.left && right == other.right;
    }
};

} // namespace Settings

template<> struct MtConf::JsonForm<Settings::WrapMode> : MtConf::JsonByName<Settings::WrapMode>
{
};
template<> struct MtConf::JsonForm<Settings::Scale> : MtConf::JsonByName<Settings::Scale>
{
};
template<> struct MtConf::JsonForm<Settings::Edges> : MtConf::JsonByName<Settings::Edges>
{
};

template<> struct MtConf::JsonForm<Settings::Margins>
{
    static QJsonValue toJson(const Settings::Margins &m) { return QJsonArray{m.left, m.right}; }
    static std::optional<Settings::Margins> fromJson(const QJsonValue &json)
    {
        const auto numbers = JsonForm<std::vector<int>>::fromJson(json);
        if (!numbers || numbers->size() != 2)
            return std::nullopt;
        return Settings::Margins{numbers->at(0), numbers->at(1)};
    }
};
