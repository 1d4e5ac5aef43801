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
    <message>
        <source>Another program may use this hotkey.</source>
        <translation>Возможно, это сочетание использует другая программа.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>Среда рабочего стола пока не ответила.</translation>
    </message>
    <message>
        <source>The hotkey has not been set up yet.</source>
        <translation>Сочетание клавиш ещё не назначено.</translation>
    </message>
    <message>
        <source>A global hotkey is one key, alone or with modifiers.</source>
        <translation>Глобальное сочетание — это одна клавиша, отдельно или с модификаторами.</translation>
    </message>
    <message>
        <source>This keyboard does not have the key.</source>
        <translation>На этой клавиатуре нет такой клавиши.</translation>
    </message>
    <message>
        <source>Another program uses this hotkey.</source>
        <translation>Это сочетание использует другая программа.</translation>
    </message>
    <message>
        <source>The hotkey was refused by you or by the desktop.</source>
        <translation>Сочетание клавиш отклонено вами или средой рабочего стола.</translation>
    </message>
    <message>
        <source>Global hotkeys are not available on this system.</source>
        <translation>Глобальные сочетания клавиш недоступны в этой системе.</translation>
    </message>
    <message>
        <source>Click to try again.</source>
        <translation>Нажмите, чтобы повторить попытку.</translation>
    </message>
    <message>
        <source>Assigned by the desktop: %1</source>
        <translation>Назначено средой рабочего стола: %1</translation>
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
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
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
    <name>MtConf::DependencyNote</name>
    <message>
        <source>Needs “%1”</source>
        <translation>Требуется «%1»</translation>
    </message>
    <message>
        <source>Not with “%1”</source>
        <translation>Недоступно при «%1»</translation>
    </message>
    <message>
        <source>Needs “%1”: %2</source>
        <translation>Требуется «%1»: %2</translation>
    </message>
</context>
<context>
    <name>MtConf::HistoryFeature</name>
    <message>
        <source>Removed 1 entry.</source>
        <translation>Удалена 1 запись.</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries.</source>
        <translation>
            <numerusform>Удалена %n запись.</numerusform>
            <numerusform>Удалено %n записи.</numerusform>
            <numerusform>Удалено %n записей.</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported 1 setting.</source>
        <translation>Импортирован 1 параметр.</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n settings.</source>
        <translation>
            <numerusform>Импортирован %n параметр.</numerusform>
            <numerusform>Импортировано %n параметра.</numerusform>
            <numerusform>Импортировано %n параметров.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %n settings.</source>
        <translation>
            <numerusform>Сброшен %n параметр.</numerusform>
            <numerusform>Сброшено %n параметра.</numerusform>
            <numerusform>Сброшено %n параметров.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MtConf::ImportDialog</name>
    <message>
        <source>Import settings</source>
        <translation>Импорт настроек</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes these settings. Those that are checked are imported.</source>
        <translation>Файл «%1» изменяет эти параметры. Отмеченные будут импортированы.</translation>
    </message>
    <message>
        <source>Settings in the file</source>
        <translation>Настройки в файле</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Параметр</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Здесь</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>В файле</translation>
    </message>
    <message>
        <source>%1, here: %2, in the file: %3</source>
        <translation>%1, здесь: %2, в файле: %3</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Выбрать все</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Снять выбор</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>Импортировать (%1)</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Другие параметры</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (по умолчанию)</translation>
    </message>
    <message>
        <source>Does not exist</source>
        <translation>Не существует</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Удалено</translation>
    </message>
    <message>
        <source>Entries of other versions, which are left out: %1</source>
        <translation>Пропущенные записи других версий: %1</translation>
    </message>
    <message>
        <source>Entries that cannot be read, which are left out: %1</source>
        <translation>Пропущенные нечитаемые записи: %1</translation>
    </message>
    <message>
        <source>Settings that stay on each computer, which are left out: %1</source>
        <translation>Пропущенные параметры, свои для каждого компьютера: %1</translation>
    </message>
    <message>
        <source>Locked settings, which are left out: %1</source>
        <translation>Пропущенные заблокированные параметры: %1</translation>
    </message>
    <message>
        <source>Settings whose value is not accepted here: %1</source>
        <translation>Параметры, значение которых здесь не принимается: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ImportExport</name>
    <message>
        <source>Import…</source>
        <translation>Импорт…</translation>
    </message>
    <message>
        <source>Import settings from a file</source>
        <translation>Импортировать настройки из файла</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Экспорт…</translation>
    </message>
    <message>
        <source>Export the settings to a file</source>
        <translation>Экспортировать настройки в файл</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Настройки (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Все файлы (*)</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>Экспорт настроек</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>Импорт настроек</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes nothing here.</source>
        <translation>Файл «%1» ничего здесь не меняет.</translation>
    </message>
    <message>
        <source>Settings that could not be imported: %1</source>
        <translation>Параметры, которые не удалось импортировать: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::InputConflicts</name>
    <message>
        <source>%1 is used by: %2</source>
        <translation>%1 уже используется здесь: %2</translation>
    </message>
    <message>
        <source>Also used by: %1</source>
        <translation>Используется также здесь: %1</translation>
    </message>
    <message>
        <source>%1 is needed for typing and editing.</source>
        <translation>%1 требуется для набора и правки текста.</translation>
    </message>
</context>
<context>
    <name>MtConf::InputOffer</name>
    <message>
        <source>Replace</source>
        <translation>Заменить</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Поменять местами</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Оставить оба</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>MtConf::InputRegistry</name>
    <message>
        <source>another shortcut of this program</source>
        <translation>другое сочетание клавиш этой программы</translation>
    </message>
</context>
<context>
    <name>MtConf::LivePages</name>
    <message>
        <source>Changed elsewhere meanwhile. What you type replaces it.</source>
        <translation>Тем временем изменено в другом месте. Ваш ввод заменит новое значение.</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernPageBuilder</name>
    <message>
        <source>, </source>
        <comment>between the chosen entries</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>No modifier key</source>
        <translation>Без модификатора</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernWindow</name>
    <message>
        <source>Reset this page…</source>
        <translation>Сбросить страницу…</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>Сбросить всё…</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Ещё</translation>
    </message>
</context>
<context>
    <name>MtConf::ResetQuestion</name>
    <message>
        <source>Reset this page?</source>
        <translation>Сбросить эту страницу?</translation>
    </message>
    <message>
        <source>Reset all settings?</source>
        <translation>Сбросить все настройки?</translation>
    </message>
    <message>
        <source>Reset 1 setting on this page?</source>
        <translation>Сбросить 1 параметр на этой странице?</translation>
    </message>
    <message>
        <source>Reset 1 setting on all pages?</source>
        <translation>Сбросить 1 параметр на всех страницах?</translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on this page?</source>
        <translation>
            <numerusform>Сбросить %n параметр на этой странице?</numerusform>
            <numerusform>Сбросить %n параметра на этой странице?</numerusform>
            <numerusform>Сбросить %n параметров на этой странице?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on all pages?</source>
        <translation>
            <numerusform>Сбросить %n параметр на всех страницах?</numerusform>
            <numerusform>Сбросить %n параметра на всех страницах?</numerusform>
            <numerusform>Сбросить %n параметров на всех страницах?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>MtConf::RowReset</name>
    <message>
        <source>Show changed</source>
        <translation>Показать изменённые</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>Изменено: %n</numerusform>
            <numerusform>Изменено: %n</numerusform>
            <numerusform>Изменено: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>Сбросить: %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Copy key</source>
        <translation>Копировать ключ</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>Копировать значение</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Изменено</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Изменённые параметры</translation>
    </message>
</context>
<context>
    <name>MtConf::RowWords</name>
    <message>
        <source>Default: %1</source>
        <translation>По умолчанию: %1</translation>
    </message>
    <message>
        <source>Not changed</source>
        <translation>Не изменено</translation>
    </message>
    <message>
        <source>Changed on %1</source>
        <translation>Изменено %1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Изменено</translation>
    </message>
    <message>
        <source>From the file %1</source>
        <translation>Из файла %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer on %1</source>
        <translation>Изменено другой программой или на другом компьютере %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer</source>
        <translation>Изменено другой программой или на другом компьютере</translation>
    </message>
    <message>
        <source>Locked by the administrator</source>
        <translation>Заблокировано администратором</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFile</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>«%1» — не файл.</translation>
    </message>
    <message>
        <source>The settings could not be saved in &quot;%1&quot;.</source>
        <translation>Не удалось сохранить настройки в «%1».</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>Файл «%1» не существует.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than %2.</source>
        <translation>Файл «%1» больше %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read.</source>
        <translation>Не удалось прочитать файл «%1».</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>Файл «%1» пуст.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged: its content is nested too deeply.</source>
        <translation>Файл «%1» повреждён: слишком глубокая вложенность содержимого.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged or not complete.</source>
        <translation>Файл «%1» повреждён или неполон.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not contain settings.</source>
        <translation>Файл «%1» не содержит настроек.</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <comment>name of a file</comment>
        <translation>Настройки %1</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFind</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Поиск настроек</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Очистить поиск</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>Показать ещё (%1)</translation>
    </message>
    <message>
        <source>No setting matches “%1”</source>
        <translation>Нет параметров по запросу «%1»</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Результаты</translation>
    </message>
    <message>
        <source>Enter opens the page</source>
        <translation>Enter открывает страницу</translation>
    </message>
</context>
<context>
    <name>MtConf::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
</context>
<context>
    <name>MtConf::ValueInWords</name>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Не задано</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Пусто</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 пикс.</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 пт</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>полужирный</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>курсив</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>подчёркнутый</translation>
    </message>
</context>
<context>
    <name>MtConf::WindowIdentity</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Settings — %1</source>
        <translation>Настройки – %1</translation>
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
