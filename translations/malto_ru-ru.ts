<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>ColorSelectButton</name>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
</context>
<context>
    <name>ConfigurationWindow</name>
    <message>
        <source>Quorvi Configuration</source>
        <translation>Настройки Quorvi</translation>
    </message>
    <message>
        <source>Restore All Default</source>
        <translation>Сбросить всё</translation>
    </message>
    <message>
        <source>Restore Default</source>
        <translation>Вернуть значения по умолчанию</translation>
    </message>
</context>
<context>
    <name>KeySequenceEdit</name>
    <message>
        <source>Press shortcut key</source>
        <translation>Нажмите клавиши</translation>
    </message>
    <message>
        <source>Clear shortcut key</source>
        <translation>Очистить сочетание клавиш</translation>
    </message>
    <message>
        <source>Shortkey [%1] is too simple.
To avoid conflicts with other functions and prevent accidental activations, please set a more complex hotkey combination.

If you need to set simple shortcuts, go to the [System] Settings page and check [Allow simple global hotkeys].</source>
        <translation>Сочетание клавиш [%1] слишком простое.
Чтобы избежать конфликтов с другими функциями и случайных срабатываний, задайте более сложное сочетание.

Если вам нужны простые сочетания клавиш, откройте страницу настроек [Система] и установите флажок [Разрешить простые глобальные сочетания].</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfDefWidgetQKeySequence</name>
    <message>
        <source>Not set</source>
        <translation>Не задано</translation>
    </message>
    <message>
        <source>Setup failed, the hotkey may be occupied. Click to try setup again.</source>
        <translation>Не удалось назначить: возможно, сочетание клавиш уже занято. Нажмите, чтобы повторить попытку.</translation>
    </message>
    <message>
        <source>Setup success.</source>
        <translation>Успешно назначено.</translation>
    </message>
    <message>
        <source>Disabled.</source>
        <translation>Отключено.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetDateTime</name>
    <message>
        <source>Not set</source>
        <translation>Не задано</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Enter a date and time from %1 to %2</source>
        <translation>Введите дату и время от %1 до %2</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetLanguage</name>
    <message>
        <source>Follow the system</source>
        <translation>Как в системе</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetMouseAction</name>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Left Click</source>
        <translation>Щелчок левой</translation>
    </message>
    <message>
        <source>Left Double Click</source>
        <translation>Двойной левой</translation>
    </message>
    <message>
        <source>Right Click</source>
        <translation>Щелчок правой</translation>
    </message>
    <message>
        <source>Right Double Click</source>
        <translation>Двойной правой</translation>
    </message>
    <message>
        <source>Middle Click</source>
        <translation>Щелчок средней</translation>
    </message>
    <message>
        <source>Middle Double Click</source>
        <translation>Двойной средней</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Колесо мыши</translation>
    </message>
    <message>
        <source>Left Drag</source>
        <translation>Тянуть левой</translation>
    </message>
    <message>
        <source>Right Drag</source>
        <translation>Тянуть правой</translation>
    </message>
    <message>
        <source>Middle Drag</source>
        <translation>Тянуть средней</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPassword</name>
    <message>
        <source>Show</source>
        <translation>Показать</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPath</name>
    <message>
        <source>Browse...</source>
        <translation>Обзор…</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>Эта папка не существует.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Это файл, а не папка.</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>Это папка, а не файл.</translation>
    </message>
    <message>
        <source>The folder of this file does not exist.</source>
        <translation>Папка этого файла не существует.</translation>
    </message>
    <message>
        <source>This file does not exist.</source>
        <translation>Этот файл не существует.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetStringList</name>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Вниз</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigItemWidget</name>
    <message>
        <source>From %1 to %2</source>
        <translation>От %1 до %2</translation>
    </message>
    <message>
        <source>Enter a number from %1 to %2</source>
        <translation>Введите число от %1 до %2</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>Confirm</source>
        <translation>Подтвердить</translation>
    </message>
    <message>
        <source>Are you sure to restore current page default?</source>
        <translation>Вы действительно хотите восстановить значения по умолчанию на текущей странице?</translation>
    </message>
    <message>
        <source>Are you sure to restore all default?</source>
        <translation>Вы действительно хотите восстановить все значения по умолчанию?</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cannot set left-click separately</source>
        <translation>Щелчок левой кнопкой нельзя назначить сам по себе</translation>
    </message>
    <message>
        <source>No set</source>
        <translation>Не задано</translation>
    </message>
    <message>
        <source>Conflict with %1</source>
        <translation>Конфликт с параметром «%1»</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> мс</translation>
    </message>
    <message>
        <source> s</source>
        <translation> с</translation>
    </message>
    <message>
        <source> min</source>
        <translation> мин</translation>
    </message>
    <message>
        <source> h</source>
        <translation> ч</translation>
    </message>
    <message>
        <source> d</source>
        <translation> д</translation>
    </message>
</context>
</TS>
