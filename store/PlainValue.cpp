#include "PlainValue_p.h"

#include "PlainDump_p.h"
#include "ValueText_p.h"

namespace {

bool setText(const QString &text, ConfValue *value)
{
    switch (value->mType) {
    case ConfValue::TyQString: value->set<QString>(text); return true;
    case ConfValue::TyQKeySequence: value->set<QKeySequence>(readKeysText(text)); return true;
    case ConfValue::TyQColor:
        if (!isColorText(text))
            return false;
        value->set<QColor>(readColorText(text));
        return true;
    case ConfValue::TyQFont: {
        QFont font;
        if (!parseFontText(text, &font) || !hasUsableSize(font))
            return false;
        value->set<QFont>(font);
        return true;
    }
    default: return false;
    }
}

} // namespace

bool setPlainValue(const PlainMember &member, ConfValue *value)
{
    if (member.isText())
        return setText(member.text(), value);
    const QJsonValue &json = member.otherValue;
    if (value->mType == ConfValue::TyBool && json.isBool()) {
        value->set<bool>(json.toBool());
        return true;
    }
    if (value->mType == ConfValue::TyInt32 && json.isDouble()) {
        const int number = json.toInt();
        if (json.toDouble() != number)
            return false; // a fraction, or more than 32 bits
        value->set<int>(number);
        return true;
    }
    return false;
}
