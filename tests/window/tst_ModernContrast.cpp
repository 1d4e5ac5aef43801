#include "LifetimeFixture.h"
#include "support/Contrast.h"
#include "support/TestMain.h"

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>

namespace {

using Contrast = QThemeCtrl::Contrast;
using Theme = QThemeCtrl::Theme;

struct Look
{
    const char *name;
    Theme theme;
    Contrast contrast;
};

constexpr Look sLooks[] = {
    {"light", Theme::Light, Contrast::Normal},
    {"dark", Theme::Dark, Contrast::Normal},
    {"high contrast, light", Theme::Light, Contrast::High},
    {"high contrast, dark", Theme::Dark, Contrast::High},
};

void select(int look)
{
    QThemeCtrl::instance()->setTheme(sLooks[look].theme);
    QThemeCtrl::instance()->setContrast(sLooks[look].contrast);
}

void addLooks()
{
    QTest::addColumn<int>("look");
    for (int look = 0; look < int(std::size(sLooks)); ++look)
        QTest::newRow(sLooks[look].name) << look;
}

QImage grabbed(QWidget *widget)
{
    // From the window, so that a transparent widget has the background behind it.
    const QRect place(widget->mapTo(widget->window(), QPoint()), widget->size());
    return widget->window()->grab(place).toImage();
}

/// Returns the first `width` pixels of a row of the class list, or the whole row.
QImage grabbedRow(int row, int width)
{
    QListView *list = WindowFixture::classList();
    QRect place = list->visualRect(list->model()->index(row, 0));
    if (width > 0)
        place.setWidth(width);
    place.moveTopLeft(list->viewport()->mapTo(list->window(), place.topLeft()));
    return list->window()->grab(place).toImage();
}

QColor mostFrequent(const QImage &image)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    }
    QRgb best = 0;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        if (*count > counts.value(best))
            best = count.key();
    }
    return QColor(best);
}

/// Returns the contrast ratio between the most frequent colour and the one that differs most.
double drawnContrast(const QImage &image)
{
    const QColor ground = mostFrequent(image);
    double best = 1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            best = qMax(best, contrast(QColor(image.pixel(x, y)), ground));
    }
    return best;
}

} // namespace

/// Contrast ratios of the modern look, in both themes and in high contrast: at least 4.5 to 1 for
/// texts, and 3 to 1 for rings, lines of fields, switches and icons.
class tst_ModernContrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void coloursHaveEnoughContrast_data();
    void coloursHaveEnoughContrast();
    void drawnTextsHaveEnoughContrast_data() { addLooks(); }
    void drawnTextsHaveEnoughContrast();
    void switchesAreVisible_data() { addLooks(); }
    void switchesAreVisible();
    void linesOfFieldsAreVisible_data() { addLooks(); }
    void linesOfFieldsAreVisible();
    void iconsOfClassesAreVisible_data() { addLooks(); }
    void iconsOfClassesAreVisible();
    void arrowsOfFieldsAreVisible_data() { addLooks(); }
    void arrowsOfFieldsAreVisible();
    void placeholdersHaveEnoughContrast_data() { addLooks(); }
    void placeholdersHaveEnoughContrast();
    void pressedButtonsAreReadable_data() { addLooks(); }
    void pressedButtonsAreReadable();
    void selectionOfAListIsVisibleWithoutTheFocus_data() { addLooks(); }
    void selectionOfAListIsVisibleWithoutTheFocus();
    void whatInformsInAMenuHasEnoughContrast_data() { addLooks(); }
    void whatInformsInAMenuHasEnoughContrast();

private:
    void open();

    std::unique_ptr<LifetimeFixture> mHost;
};

void tst_ModernContrast::cleanup()
{
    mHost.reset();
    QThemeCtrl::instance()->setTheme(Theme::System);
    QThemeCtrl::instance()->setContrast(Contrast::System);
}

void tst_ModernContrast::open()
{
    mHost = std::make_unique<LifetimeFixture>();
    mHost->manager->windowLook = MtConf::ModernLook;
    mHost->manager->windowFeatures = MtConf::FindFeature;
    mHost->flag = false;
    QMap<QString, QChar> icons{{"Edit", QChar(0xe800)}, {"Other", QChar(0xe801)}};
    mHost->manager->setIconMap(icons);
    QVERIFY(mHost->manager->ShowWindow("Edit"));
    mHost->window()->resize(900, 900);
    QVERIFY(QTest::qWaitForWindowExposed(mHost->window()));
    mHost->window()->setFocus(); // no ring
}

void tst_ModernContrast::coloursHaveEnoughContrast_data()
{
    QTest::addColumn<int>("look");
    QTest::addColumn<QString>("front");
    QTest::addColumn<QString>("ground");
    QTest::addColumn<double>("least");
    for (int look = 0; look < int(std::size(sLooks)); ++look) {
        const auto add = [look](const QStringList &fronts, const QStringList &grounds,
                                double least) {
            for (const QString &front : fronts) {
                for (const QString &ground : grounds) {
                    QTest::addRow("%s: %s on %s", sLooks[look].name, qPrintable(front),
                                  qPrintable(ground))
                        << look << front << ground << least;
                }
            }
        };
        add({"ModernPlaceholder"}, {"ModernGround", "ModernPanel", "ModernField"}, 4.5);
        add({"ModernText", "ModernSecondary"},
            {"ModernGround", "ModernPanel", "ModernField", "ModernHover", "ModernHit"}, 4.5);
        add({"ModernAccent", "ModernWarning", "ModernError", "ModernGood"},
            {"ModernGround", "ModernPanel"}, 4.5); // links and words
        add({"ModernOnAccent"}, {"ModernAccent"}, 4.5);
        add({"ModernOnError"}, {"ModernError"}, 4.5);
        add({"ModernPanel"}, {"ModernText"}, 4.5);                 // inverse bars
        add({"ModernHover"}, {"ModernPanel", "ModernField"}, 1.1); // an area
        add({"ModernFieldLine"}, {"ModernGround", "ModernPanel", "ModernField"}, 3);
        add({"ModernAccent"}, {"ModernField"}, 3);
        add({"ModernKnob"}, {"ModernAccent", "ModernFieldLine"}, 3);
    }
}

void tst_ModernContrast::coloursHaveEnoughContrast()
{
    QFETCH(const int, look);
    QFETCH(const QString, front);
    QFETCH(const QString, ground);
    QFETCH(const double, least);
    select(look);
    const QThemeCtrl *themes = QThemeCtrl::instance();
    const double ratio = contrast(themes->color(front), themes->color(ground));
    QVERIFY2(ratio >= least, qPrintable(QString::number(ratio)));
}

void tst_ModernContrast::drawnTextsHaveEnoughContrast()
{
    QFETCH(const int, look);
    select(look);
    open();
    for (const char *name : {"Flag", "Number", "Text", "Bits", "Colour", "Font", "Key", "Mouse"}) {
        QWidget *row = mHost->manager->getItemByName("Edit", name, "")->editor->parentWidget();
        QVERIFY2(drawnContrast(grabbed(row->findChild<QLabel *>())) >= 4.5, name);
    }
    for (const char *name : {"ModernPageTitle", "btnRestoreDefault", "btnRestoreAllDefault"})
        QVERIFY2(drawnContrast(grabbed(WindowFixture::child<QWidget>(name))) >= 4.5, name);
    for (int row = 0; row < WindowFixture::classList()->model()->rowCount();
         ++row) { // also the selected one
        QVERIFY2(drawnContrast(grabbedRow(row, 0)) >= 4.5, QByteArray::number(row));
    }
}

void tst_ModernContrast::switchesAreVisible()
{
    QFETCH(const int, look);
    select(look);
    open();
    auto *box = mHost->control<QCheckBox>("Flag");
    for (const bool isOn : {false, true}) {
        box->setChecked(isOn);
        const QImage image = grabbed(box);
        const int middle = image.height() / 2;
        const int knob = isOn ? image.width() - middle : middle;
        // The other end is free, so the position tells the state without colours.
        const QColor track = image.pixelColor(image.width() - knob, middle);
        QVERIFY(contrast(track, image.pixelColor(0, 0)) >= 3);
        QVERIFY(contrast(image.pixelColor(knob, middle), track) >= 3);
    }
}

void tst_ModernContrast::linesOfFieldsAreVisible()
{
    QFETCH(const int, look);
    select(look);
    open();
    for (const char *name : {"Number", "Text", "Key"}) {
        auto *editor = mHost->manager->getItemByName("Edit", name, "")->editor;
        QWidget *field = editor->findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        const QImage image = grabbed(field);
        QWidget *row = editor->parentWidget();
        const QColor panel = grabbed(row).pixelColor(row->width() / 2, row->height() / 2);
        QVERIFY2(contrast(image.pixelColor(0, image.height() / 2), panel) >= 3, name);
    }
}

void tst_ModernContrast::iconsOfClassesAreVisible()
{
    QFETCH(const int, look);
    select(look);
    open();
    for (int row = 0; row < 2; ++row) { // one of them is selected
        QVERIFY2(drawnContrast(grabbedRow(row, 32)) >= 3, QByteArray::number(row));
    }
}

void tst_ModernContrast::arrowsOfFieldsAreVisible()
{
    QFETCH(const int, look);
    select(look);
    open();
    const bool isHigh = QThemeCtrl::instance()->isHighContrast();
    for (const char *name : {"Number", "Text"}) {
        auto *editor = mHost->manager->getItemByName("Edit", name, "")->editor;
        const QWidget *field = editor->findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        const QImage image = mHost->window()->grab().toImage();
        const QRect whole(field->mapTo(mHost->window(), QPoint()), field->size());
        const int inset = 3; // the line of the field
        const QRect arrows(whole.right() - 22, whole.top() + inset, 20 - inset,
                           whole.height() - 2 * inset);
        QVERIFY2(drawnContrast(image.copy(arrows)) >= (isHigh ? 4.5 : 3), name);
    }
}

void tst_ModernContrast::placeholdersHaveEnoughContrast()
{
    QFETCH(const int, look);
    // Each look replaces the colours of the one before.
    open();
    select(look);
    const QColor ground = QThemeCtrl::instance()->color("ModernField");
    const QList<QLineEdit *> edits = mHost->window()->findChildren<QLineEdit *>();
    int count = 0;
    for (const QLineEdit *edit : edits) {
        if (qobject_cast<const QAbstractSpinBox *>(edit->parent()) || !edit->isVisible())
            continue;
        const QColor color = edit->palette().color(QPalette::PlaceholderText);
        QCOMPARE(color.alpha(), 255);
        QVERIFY2(contrast(color, ground) >= 4.5, qPrintable(edit->objectName()));
        // It does not look like a value.
        QVERIFY(contrast(color, QThemeCtrl::instance()->color("ModernText")) >= 1.5);
        ++count;
    }
    QVERIFY(count >= 3); // Find, a hotkey, several choices
}

void tst_ModernContrast::pressedButtonsAreReadable()
{
    QFETCH(const int, look);
    select(look);
    open();
    auto *button = mHost->control<QPushButton>("Font");
    button->setDown(true);
    QVERIFY(drawnContrast(grabbed(button).copy(3, 3, button->width() - 6, button->height() - 6))
            >= 4.5);
}

void tst_ModernContrast::selectionOfAListIsVisibleWithoutTheFocus()
{
    QFETCH(const int, look);
    select(look);
    open();
    auto *list = new QListWidget(mHost->window());
    list->addItems({"one", "two"});
    list->resize(200, 100);
    list->setCurrentRow(1);
    list->show();
    const QRect row = list->visualItemRect(list->item(1));
    const QImage image = grabbed(list->viewport());
    // The line around it, where there is no text.
    const QColor line = image.pixelColor(row.center().x(), row.bottom());
    const QColor field = QThemeCtrl::instance()->color("ModernField");
    QVERIFY(contrast(line, field) >= 3);
}

void tst_ModernContrast::whatInformsInAMenuHasEnoughContrast()
{
    QFETCH(const int, look);
    select(look);
    open();
    QMenu menu(mHost->window());
    menu.addAction("Default: 3")->setEnabled(false);
    menu.popup(mHost->window()->pos());
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    const QRect entry = menu.actionGeometry(menu.actions().first());
    QVERIFY(drawnContrast(menu.grab(entry).toImage()) >= 4.5);
}

int main(int argc, char **argv)
{
    return runTest<tst_ModernContrast>(argc, argv);
}

#include "tst_ModernContrast.moc"
