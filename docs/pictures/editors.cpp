// Draws a picture of each kind of setting as the settings window shows it: editors <folder>
#include <MaltoConfiguration/MaltoConfiguration.h>

#include <OrvUtils/QThemeCtrl.h>

#include <QxtGlobalShortcut>

#include <QAction>
#include <QApplication>
#include <QDateTime>
#include <QScrollArea>
#include <QTemporaryDir>

#include <utility>

using MtConf::ConfItem;

namespace {

constexpr int sMargin = 12; // pixels around a row

void settle()
{
    for (int round = 0; round < 20; ++round)
        QCoreApplication::processEvents();
}

/// Returns a picture of an item's caption and editor, with a margin of the panel around them.
QPixmap pictureOf(const ConfItem &item)
{
    QWidget *const panel = item.editor->parentWidget();
    QRect row = item.editor->geometry();
    const QWidget *const caption = item.editor->label();
    if (caption->parentWidget() == panel)
        row |= caption->geometry();
    row = QRect(1, row.top() - sMargin, row.right() + sMargin, row.height() + 2 * sMargin);
    return panel->grab(row & panel->rect().adjusted(1, 1, -1, -1));
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QString folder = QDir(app.arguments().value(1, ".")).absolutePath();
    const QTemporaryDir working; // for the files that the library writes
    QDir::setCurrent(working.path());

    bool on = true;
    int number = 7, choice = 4, several = 3, wheel = 0x04000000 | 64, click = 4, drag = 128;
    QColor color(42, 103, 216, 200);
    QFont font("Helvetica");
    font.setPixelSize(14);
    QString text = "PNG", language = "auto", author = "Ada Lovelace", token = "0123456789";
    QString note = "First line\nSecond line", path = QDir::rootPath();
    QStringList folders{"~/Pictures", "~/Videos"};
    double factor = 1.5;
    std::chrono::seconds interval(30);
    QDateTime reminder(QDate(2026, 12, 24), QTime(18, 30));
    QAction reload;
    QKeySequence reloadKey(Qt::CTRL | Qt::Key_R);
    QKeySequence hotkey(Qt::CTRL | Qt::ALT | Qt::Key_A);
    QxtGlobalShortcut shortcut(hotkey);

    ConfStorage::instance()->mLocalSaveFile = "settings.json";
    MtConf::MtConfManage manager;
    const QString page = "Editors";
    manager.addConfBool("Play a sound", &on, page, "bool");
    manager.addConfInt32("Delay in seconds", &number, page, "int");
    manager.addConfQColor("Colour of the frame", &color, page, "color");
    manager.addConfQFont("Font of the label", &font, page, "font");
    manager.addConfStrWithCombobox("Format", {"PNG", "JPEG", "WebP"}, &text, page, "text-choice");
    manager.addConfInt32WithCombobox("Magnification", {"2 ×", "4 ×", "8 ×"}, {2, 4, 8}, &choice,
                                     page, "int-choice");
    manager
        .addConfInt32WithCombobox("Snap to", {"Windows", "Screen edges", "Guides"}, {1, 2, 4},
                                  &several, page, "multi-choice")
        ->properties.insert("MultiSelect", true);
    manager.addConfQKeySequence("Capture an area", &hotkey, page, "hotkey")
        ->properties.insert("Shortcut", QVariant::fromValue(&shortcut));
    manager.addConfMouseAction("Zoom", &wheel, 0, page, "mouse-wheel");
    manager.addConfMouseAction("Show the menu", &click, 1, page, "mouse-click");
    manager.addConfMouseAction("Move", &drag, 2, page, "mouse-drag");
    manager.addConfLanguage("Language", &language, page, "language");
    manager.addConfDouble("Magnification", &factor, page, "double")->setSuffix(" ×");
    manager.addConfDuration("Save every", &interval, page, "duration");
    manager.addConfDateTime("Remind me", &reminder, page, "date-time");
    manager.addConfText("Author", &author, page, "text");
    manager.addConfMultilineText("Note", &note, page, "multiline");
    manager.addConfPassword("Token", &token, page, "password");
    manager.addConfPath("Folder", &path, MtConf::PathKind::Folder, page, "path");
    manager.addConfStringList("Folders to watch", &folders, page, "string-list");
    manager.addConfShortcut("Reload", &reloadKey, &reload, page, "shortcut");

    QThemeCtrl::instance()->setTheme(QThemeCtrl::Theme::Light);
    manager.ShowWindow()->resize(920, 1900);
    settle();
    for (const ConfItem &item : std::as_const(manager.items)) {
        if (!pictureOf(item).save(folder + '/' + item.name + ".png"))
            qFatal("cannot write to %s", qPrintable(folder));
    }
    return 0;
}
