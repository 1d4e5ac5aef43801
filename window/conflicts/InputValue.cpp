#include "InputValue_p.h"

#include "MaltoConfiguration/inputs/InputChords_p.h"
#include "MaltoConfiguration/widgets/EditorTexts_p.h"
#include "MaltoConfiguration/widgets/GestureConflict_p.h"
#include "MaltoConfiguration/window/rows/ValueInWords_p.h"
#include "QtCompat_p.h"

#include <MaltoConfiguration/inputs/InputRegistry.h>
#include <MaltoConfiguration/store/ConfStorage.h>
#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <QStringList>

#include <algorithm>
#include <iterator>

namespace MtConf {

InputValue storedInput(const QString &key, const InputValue &like)
{
    const ConfValue stored = ConfStorage::instance()->mConfValues.value(key);
    if (std::holds_alternative<int>(like))
        return stored.mType == ConfValue::TyInt32 ? stored.get<int>() : 0;
    return stored.mType == ConfValue::TyQKeySequence ? stored.get<QKeySequence>() : QKeySequence();
}

void storeInput(const QString &key, const InputValue &value)
{
    std::visit([&key](const auto &typed) { ConfStorage::instance()->set(key, typed); }, value);
}

InputValue emptyInput(const InputValue &like)
{
    return std::holds_alternative<int>(like) ? InputValue(0) : InputValue(QKeySequence());
}

QJsonValue inputToJson(const InputValue &value)
{
    return std::visit([](const auto &typed) { return ConfValue::owned(typed).toJsonValue(); },
                      value);
}

QString inputInWords(const InputValue &value)
{
    if (const int *const gesture = std::get_if<int>(&value))
        return isolated(mouseActionText(*gesture));
    return isolated(KeySequenceEdit::QKeySeqToStr(std::get<QKeySequence>(value)));
}

QString namesOfUses(const QList<InputUse> &uses)
{
    constexpr int sMostNames = 3;
    QStringList names;
    for (const InputUse &use : uses.mid(0, sMostNames))
        names.append(isolated(use.name));
    if (uses.size() > names.size())
        names.append(QStringLiteral("…"));
    return names.join(listSeparator());
}

bool hasEffect(const InputSetting &setting)
{
    return doConflict(setting, setting);
}

bool doConflict(const InputSetting &a, const InputSetting &b)
{
    if (const int *const gesture = std::get_if<int>(&a.value)) {
        const int conflictKey = gestureConflictKey(*gesture);
        return conflictKey != 0 && conflictKey == gestureConflictKey(std::get<int>(b.value));
    }
    const auto keysOf = [](const InputSetting &setting) {
        return InputKeys{chordsOf(std::get<QKeySequence>(setting.value)), setting.isGlobal};
    };
    return doMeet(keysOf(a), keysOf(b));
}

QList<InputUse> conflictsWith(const InputRegistry &registry, const QString &key,
                              const InputValue &value)
{
    return std::visit([&](const auto &typed) { return registry.conflictsOf(key, typed); }, value);
}

bool isNeededForTyping(const QKeySequence &keys, bool isGlobal)
{
    constexpr int sModifiers = static_cast<int>(Qt::KeyboardModifierMask);
    constexpr int sFirstKeyWithoutCharacter = Qt::Key_Escape;
    constexpr Qt::Key sEditing[] = {Qt::Key_A, Qt::Key_C, Qt::Key_Q, Qt::Key_V,
                                    Qt::Key_W, Qt::Key_X, Qt::Key_Z};
    if (keys.count() != 1)
        return false;
    const int chord = QtCompat::chordAt(keys, 0);
    const int key = chord & ~sModifiers;
    const int modifiers = chord & sModifiers;
    const int typing = static_cast<int>(Qt::ShiftModifier) | static_cast<int>(Qt::KeypadModifier);
    if (key < sFirstKeyWithoutCharacter && (modifiers & ~typing) == 0)
        return true;
    return isGlobal && modifiers == static_cast<int>(Qt::ControlModifier)
           && std::find(std::begin(sEditing), std::end(sEditing), key) != std::end(sEditing);
}

} // namespace MtConf
