#include "LifetimeFixture.h"
#include "support/Contrast.h"
#include "support/TestMain.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>

#include <map>

namespace {

/// Returns the contrast ratio between a widget's most frequent colour and the drawn colour that
/// differs most from it.
double drawnContrast(QWidget *widget)
{
    // Grab from the window, so that a transparent widget has the background behind it.
    const QRect place(widget->mapTo(widget->window(), QPoint()), widget->size());
    const QImage image = widget->window()->grab(place).toImage();
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    }
    const auto ground = std::max_element(counts.cbegin(), counts.cend(),
                                         [](auto &a, auto &b) { return a.second < b.second; });
    double best = 1;
    for (const auto &color : counts)
        best = qMax(best, contrast(QColor(color.first), QColor(ground->first)));
    return best;
}

} // namespace

/// Contrast ratios in both themes: at least 4.5 to 1 for texts, 3 to 1 for other signs.
class tst_Contrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QThemeCtrl::instance()->setTheme(QThemeCtrl::Theme::System); }

    void contrastFollowsTheGuidelines();
    void themeColoursHaveEnoughContrast_data();
    void themeColoursHaveEnoughContrast();
    void drawnTextsHaveEnoughContrast_data();
    void drawnTextsHaveEnoughContrast();
};

void tst_Contrast::contrastFollowsTheGuidelines()
{
    QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
    QCOMPARE(contrast(Qt::red, Qt::red), 1.0);
    QVERIFY(qAbs(contrast(QColor("#767676"), Qt::white) - 4.54) < 0.01);
}

void tst_Contrast::themeColoursHaveEnoughContrast_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<QString>("front");
    QTest::addColumn<QString>("ground");
    QTest::addColumn<double>("least");
    for (const auto theme : {QThemeCtrl::Theme::Light, QThemeCtrl::Theme::Dark}) {
        const char *name = theme == QThemeCtrl::Theme::Light ? "light" : "dark";
        const auto add = [&](const QString &front, const QStringList &grounds, double least) {
            for (const QString &ground : grounds) {
                QTest::addRow("%s: %s on %s", name, qPrintable(front), qPrintable(ground))
                    << int(theme) << front << ground << least;
            }
        };
        const QStringList grounds{"ColorBg0", "ColorBg1", "ColorBg2", "ColorBg3"};
        add("ColorFg0", grounds, 4.5);
        add("white", {"ColorMain"}, 4.5);
        // The icons for states, and the focus frame.
        for (const char *sign :
             {"ColorSuccess", "ColorWarning", "ColorFailed", "ColorDisable", "ColorMain"})
            add(sign, {"ColorBg1"}, 3);
    }
}

void tst_Contrast::themeColoursHaveEnoughContrast()
{
    QFETCH(int, theme);
    QFETCH(QString, front);
    QFETCH(QString, ground);
    QFETCH(double, least);
    QThemeCtrl *themes = QThemeCtrl::instance();
    themes->setTheme(static_cast<QThemeCtrl::Theme>(theme));
    const QColor color = front == "white" ? QColor(Qt::white) : themes->color(front);
    const double ratio = contrast(color, themes->color(ground));
    QVERIFY2(ratio >= least, qPrintable(QString::number(ratio)));
}

void tst_Contrast::drawnTextsHaveEnoughContrast_data()
{
    QTest::addColumn<int>("theme");
    QTest::newRow("light") << int(QThemeCtrl::Theme::Light);
    QTest::newRow("dark") << int(QThemeCtrl::Theme::Dark);
}

void tst_Contrast::drawnTextsHaveEnoughContrast()
{
    QFETCH(int, theme);
    LifetimeFixture host;
    host.flag = false; // a check mark has more contrast than the text
    QThemeCtrl::instance()->setTheme(static_cast<QThemeCtrl::Theme>(theme));
    QVERIFY(host.manager->ShowWindow("Edit"));
    host.window()->resize(900, 900);
    QVERIFY(QTest::qWaitForWindowExposed(host.window()));
    for (const char *name :
         {"Flag", "Number", "Text", "Bits", "Colour", "Font", "Key", "Mouse", "Language", "Host"}) {
        MtConf::ConfigItemWidget *editor = host.manager->getItemByName("Edit", name, "")->editor;
        QVERIFY2(drawnContrast(editor->label()) >= 4.5, name);
    }
    for (QWidget *control : {static_cast<QWidget *>(host.control<QAbstractSpinBox>("Number")),
                             static_cast<QWidget *>(host.control<QComboBox>("Text")),
                             static_cast<QWidget *>(host.control<QComboBox>("Language")),
                             static_cast<QWidget *>(host.control<QPushButton>("Font")),
                             static_cast<QWidget *>(host.control<QLineEdit>("Key")),
                             static_cast<QWidget *>(WindowFixture::classList())})
        QVERIFY2(drawnContrast(control) >= 4.5, control->metaObject()->className());
}

int main(int argc, char **argv)
{
    return runTest<tst_Contrast>(argc, argv);
}

#include "tst_Contrast.moc"
