<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>BoundValueModel</name>
    <message>
        <source>changed</source>
        <translation>изменено</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Параметр</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>%1, %2 px</source>
        <translation>%1, %2 пикс.</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>What the library logs appears here.</source>
        <translation>Здесь появляется журнал библиотеки.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvi Capture</source>
        <translation>Quorvi Capture</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Настройки…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Restore all</source>
        <translation>Сбросить всё</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Настройки…</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Сохранить</translation>
    </message>
    <message>
        <source>&amp;Restore all…</source>
        <translation>Сбросить &amp;всё…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Тема</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Светлая</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Тёмная</translation>
    </message>
    <message>
        <source>Variables — %1 of %2 changed</source>
        <translation>Переменные – изменено %1 из %2</translation>
    </message>
    <message>
        <source>Hotkey pressed: %1 (%2)</source>
        <translation>Нажато сочетание клавиш: %1 (%2)</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Сохранено в %1</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>Не удалось записать %1</translation>
    </message>
    <message>
        <source>Restore the defaults of all settings and the presets of the profiles?</source>
        <translation>Восстановить значения по умолчанию для всех настроек и стандартные профили?</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>Как в системе</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>General</source>
        <translation>Основные</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Внешний вид</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Захват</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Сочетания</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>Мышь</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Вывод</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Профили</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Система</translation>
    </message>
    <message>
        <source>Stored data</source>
        <translation>Данные</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Обновления</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Выделение</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Лупа</translation>
    </message>
    <message>
        <source>Size label</source>
        <translation>Подпись размера</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>Привязка</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Инструменты</translation>
    </message>
    <message>
        <source>Pinned pictures</source>
        <translation>Закреплённые изображения</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>After a capture</source>
        <translation>После захвата</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Тексты</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Числа</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Варианты</translation>
    </message>
    <message>
        <source>In this program</source>
        <translation>В этой программе</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файлы</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Сеть</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>Screen</source>
        <translation>Экран</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Окно</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Миниатюра</translation>
    </message>
    <message>
        <source>A profile needs a name.</source>
        <translation>Профилю нужно имя.</translation>
    </message>
    <message>
        <source>A name can have at most %1 characters.</source>
        <translation>Длина имени — не более %1 знаков.</translation>
    </message>
    <message>
        <source>Another profile has this name.</source>
        <translation>Профиль с таким именем уже есть.</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>Новый профиль</translation>
    </message>
    <message>
        <source>New profile %1</source>
        <translation>Новый профиль %1</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Профили</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Restore presets</source>
        <translation>Вернуть стандартные</translation>
    </message>
    <message>
        <source>There is no profile.
Add one, or restore the presets.</source>
        <translation>Профилей нет.
Добавьте профиль или восстановите стандартные.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ширина</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Высота</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Рамка</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Захватывать указатель мыши</translation>
    </message>
    <message>
        <source>A preset, unchanged.</source>
        <translation>Стандартный, без изменений.</translation>
    </message>
    <message>
        <source>Yours, or a changed preset.</source>
        <translation>Свой или изменённый стандартный.</translation>
    </message>
    <message>
        <source>“%1” keeps its name. %2</source>
        <translation>«%1» сохраняет своё имя. %2</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>Удалить профиль «%1»?</translation>
    </message>
    <message>
        <source>Restore the presets? This deletes your own profiles and undoes your changes of the presets.</source>
        <translation>Восстановить стандартные профили? Ваши собственные профили будут удалены, а изменения стандартных отменены.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Запускать при входе в систему</translation>
    </message>
    <message>
        <source>Show icon in the menu bar</source>
        <translation>Значок в строке меню</translation>
    </message>
    <message>
        <source>Play a sound after a capture</source>
        <translation>Звук после захвата</translation>
    </message>
    <message>
        <source>Show tips</source>
        <translation>Показывать советы</translation>
    </message>
    <message>
        <source>Recent captures in the menu</source>
        <translation>Последние снимки в меню</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Искать обновления</translation>
    </message>
    <message>
        <source>Check interval (days)</source>
        <translation>Интервал проверки (дней)</translation>
    </message>
    <message>
        <source>Offer beta versions</source>
        <translation>Предлагать бета-версии</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Тема</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Светлая</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Тёмная</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Рамка</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>Толщина рамки</translation>
    </message>
    <message>
        <source>Shade outside</source>
        <translation>Затемнение снаружи</translation>
    </message>
    <message>
        <source>Show magnifier</source>
        <translation>Показывать лупу</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>Увеличение</translation>
    </message>
    <message>
        <source>Show size beside the selection</source>
        <translation>Показывать размер рядом с выделением</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Шрифт</translation>
    </message>
    <message>
        <source>Delay before a capture</source>
        <translation>Задержка перед захватом</translation>
    </message>
    <message>
        <source>Count down on the screen</source>
        <translation>Обратный отсчёт на экране</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Захватывать указатель мыши</translation>
    </message>
    <message>
        <source>Include the shadow of windows</source>
        <translation>Захватывать тень окон</translation>
    </message>
    <message>
        <source>Freeze the screen while selecting</source>
        <translation>Замораживать экран при выделении</translation>
    </message>
    <message>
        <source>Frames per second of videos</source>
        <translation>Кадров в секунду в видео</translation>
    </message>
    <message>
        <source>Snap to</source>
        <translation>Привязка к</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Окна</translation>
    </message>
    <message>
        <source>Screen edges</source>
        <translation>Края экрана</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>Направляющие</translation>
    </message>
    <message>
        <source>Last selection</source>
        <translation>Последнее выделение</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Расстояние</translation>
    </message>
    <message>
        <source>Hotkeys in full-screen applications</source>
        <translation>Сочетания в полноэкранном режиме</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>Задержка повтора</translation>
    </message>
    <message>
        <source>Capture an area</source>
        <translation>Захват области</translation>
    </message>
    <message>
        <source>Capture a window</source>
        <translation>Захват окна</translation>
    </message>
    <message>
        <source>Capture the screen</source>
        <translation>Захват экрана</translation>
    </message>
    <message>
        <source>Pin the clipboard</source>
        <translation>Закрепить буфер обмена</translation>
    </message>
    <message>
        <source>Double-click to finish</source>
        <translation>Завершать двойным щелчком</translation>
    </message>
    <message>
        <source>Invert the wheel</source>
        <translation>Обратное направление колеса</translation>
    </message>
    <message>
        <source>Movement that begins a drag</source>
        <translation>Сдвиг для начала перетаскивания</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Масштаб</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Непрозрачность</translation>
    </message>
    <message>
        <source>Show the menu</source>
        <translation>Показать меню</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Скрыть</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Переместить</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Рисовать</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Формат</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Качество</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Водяной знак</translation>
    </message>
    <message>
        <source>Copy it</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Save it</source>
        <translation>Сохранять</translation>
    </message>
    <message>
        <source>Open it in the editor</source>
        <translation>Открывать в редакторе</translation>
    </message>
    <message>
        <source>Allow simple global hotkeys</source>
        <translation>Разрешить простые глобальные сочетания</translation>
    </message>
    <message>
        <source>Show expert settings</source>
        <translation>Показывать дополнительные настройки</translation>
    </message>
    <message>
        <source>Steps that can be undone</source>
        <translation>Число шагов отмены</translation>
    </message>
    <message>
        <source>Bring pinned pictures back at start</source>
        <translation>Возвращать закреплённое при запуске</translation>
    </message>
    <message>
        <source>Cache (MB)</source>
        <translation>Кэш (МБ)</translation>
    </message>
    <message>
        <source>Threads that compress</source>
        <translation>Потоки сжатия</translation>
    </message>
    <message>
        <source>Draw with the graphics card</source>
        <translation>Рисовать с помощью видеокарты</translation>
    </message>
    <message>
        <source>Show times of drawing</source>
        <translation>Показывать время отрисовки</translation>
    </message>
    <message>
        <source>Write a log file</source>
        <translation>Вести файл журнала</translation>
    </message>
    <message>
        <source>Open the settings</source>
        <translation>Открыть настройки</translation>
    </message>
    <message>
        <source>Save now</source>
        <translation>Сохранить сейчас</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Автор</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Ваше имя</translation>
    </message>
    <message>
        <source>Pictures contain it if the details include the author.</source>
        <translation>Записывается в изображения, если сведения включают автора.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Заметка</translation>
    </message>
    <message>
        <source>Token for uploads</source>
        <translation>Токен для отправки</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Теги</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Логотип</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg)</source>
        <translation>Изображения (*.png *.svg)</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Файл журнала</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Яркость</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Отступ</translation>
    </message>
    <message>
        <source>Save every</source>
        <translation>Сохранять каждые</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>Напомнить</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Дата и время</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Номер</translation>
    </message>
    <message>
        <source>Title of the window</source>
        <translation>Заголовок окна</translation>
    </message>
    <message>
        <source>Details in the file</source>
        <translation>Сведения в файле</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Положение</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Использовать прокси</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Хост</translation>
    </message>
    <message>
        <source>A host has no blanks.</source>
        <translation>В имени хоста не может быть пробелов.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Порт</translation>
    </message>
    <message>
        <source> px</source>
        <translation> пикс.</translation>
    </message>
    <message>
        <source> s</source>
        <translation> с</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> мс</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Цвет</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>Взять цвет</translation>
    </message>
</context>
<context>
    <name>StoredDataPage</name>
    <message>
        <source>Stored data</source>
        <translation>Данные</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>Пока ничего не изменено.</translation>
    </message>
</context>
<context>
    <name>WatermarkEditor</name>
    <message>
        <source>Opacity</source>
        <translation>Непрозрачность</translation>
    </message>
    <message>
        <source>None if empty</source>
        <translation>Пусто: нет</translation>
    </message>
</context>
<context>
    <name>takePictures</name>
    <message>
        <source>Cannot write %1</source>
        <translation>Невозможно записать %1</translation>
    </message>
</context>
</TS>
