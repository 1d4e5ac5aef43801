#include "BenchmarkSupport.h"
#include "HandMadeModernWindow.h"
#include "HandMadeWindow.h"
#include "benchmarks.h"
#include "support/CleanStore.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <OrvUtils/QThemeCtrl.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QTranslator>

#include <memory>

namespace {

QString pageName()
{
    return QStringLiteral("Capture");
}

QString emptyPageName()
{
    return QStringLiteral("Empty");
}

/// Runs the event loop until new widgets are polished, laid out and painted.
void finishShowing()
{
    QApplication::sendPostedEvents();
    QApplication::processEvents();
}

/// Translates every text by prefixing it with a mark.
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QLatin1String("* ") + QString::fromUtf8(text);
    }
};

/// The settings window with `count` items on one page (check boxes, spin boxes and combo boxes in
/// turn) and a second, empty page.
class LibraryWindow
{
public:
    explicit LibraryWindow(int count, MtConf::WindowLook look = MtConf::ClassicLook,
                           quint32 features = 0)
        : mFlags(count), mNumbers(count)
    {
        mManager.windowLook = look;
        mManager.windowFeatures = features;
        // The window saves its geometry in the working directory.
        mPrevious = QDir::currentPath();
        QDir::setCurrent(mFolder.path());
        for (int i = 0; i < count; ++i)
            declare(i);
        mManager.addMajorConfItemIfNotExist(emptyPageName());
    }
    ~LibraryWindow()
    {
        close();
        clearStore();
        QDir::setCurrent(mPrevious);
    }
    Q_DISABLE_COPY(LibraryWindow)

    void open() { mManager.ShowWindow(QString()); }
    void close()
    {
        mManager.closeConfigWindow();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        finishShowing();
    }
    void showPage() { makeCurrent(0); }
    void leavePage() { makeCurrent(1); }
    void translate() { Q_EMIT mManager.sigLanguageChange(); }
    static void setTheme(QThemeCtrl::Theme theme) { QThemeCtrl::instance()->setTheme(theme); }

    static QWidget *widget() { return window(); }

private:
    static MtConf::ConfigurationWindow *window() { return MtConf::ConfigurationWindow::instance(); }

    /// Selects a row of the class list, like a click.
    static void makeCurrent(int row)
    {
        auto *list = window()->findChild<QListView *>(QStringLiteral("configList"));
        list->setCurrentIndex(list->model()->index(row, 0));
    }

    void declare(int i)
    {
        const QString name = QStringLiteral("Item%1").arg(i);
        if (i % 3 == 0)
            mManager.addConfBool("Show border", &mFlags[i], pageName(), name, QString());
        else if (i % 3 == 1)
            mManager.addConfInt32("Width of the border", &mNumbers[i], pageName(), name, QString());
        else
            mManager.addConfInt32WithCombobox("Size of the magnifier", {"Small", "Medium", "Large"},
                                              &mNumbers[i], pageName(), name, QString());
    }

    QTemporaryDir mFolder;
    QString mPrevious;
    QVector<bool> mFlags;
    QVector<int> mNumbers;
    MtConf::MtConfManage mManager;
};

/// The same window with everything that a host can ask for.
class ModernWindow : public LibraryWindow
{
public:
    explicit ModernWindow(int count)
        : LibraryWindow(count, MtConf::ModernLook, MtConf::AllWindowFeatures)
    {
    }
};

/// The same window without the library.
class BareWindow
{
public:
    virtual ~BareWindow() = default;
    Q_DISABLE_COPY(BareWindow)
    explicit BareWindow(int count) : BareWindow(count, LibraryWindow(0)) {}
    BareWindow(int count, LibraryWindow &&model) : mCount(count)
    {
        model.open();
        mGeometry = LibraryWindow::widget()->geometry();
        for (const auto theme : {QThemeCtrl::Theme::Dark, QThemeCtrl::Theme::Light}) {
            LibraryWindow::setTheme(theme);
            mSheets.insert(static_cast<int>(theme), LibraryWindow::widget()->styleSheet());
        }
    }

    void open()
    {
        mWindow = makeWindow({pageName(), emptyPageName()}, mSheets.last());
        mWindow->setGeometry(mGeometry);
        showPage();
        mWindow->show();
    }
    void close() { mWindow.reset(); }
    void showPage() { mWindow->showPage(pageName(), mCount); }
    void leavePage() { mWindow->showPage(emptyPageName(), 0); }
    void translate() {}
    void setTheme(QThemeCtrl::Theme theme)
    {
        mWindow->setStyleSheet(mSheets.value(static_cast<int>(theme)));
    }

    QWidget *widget() const { return mWindow.get(); }

protected:
    virtual std::unique_ptr<HandMadeWindow> makeWindow(const QStringList &classes,
                                                       const QString &sheet) const
    {
        return std::make_unique<HandMadeWindow>(classes, sheet);
    }

private:
    int mCount;
    QRect mGeometry;
    QMap<int, QString> mSheets;
    std::unique_ptr<HandMadeWindow> mWindow;
};

/// The same window in the modern look without the library.
class BareModernWindow : public BareWindow
{
public:
    explicit BareModernWindow(int count) : BareWindow(count, ModernWindow(0)) {}

protected:
    std::unique_ptr<HandMadeWindow> makeWindow(const QStringList &classes,
                                               const QString &sheet) const override
    {
        return std::make_unique<HandMadeModernWindow>(classes, sheet);
    }
};

int controlsOf(QWidget *window)
{
    return static_cast<int>(window->findChildren<QAbstractSpinBox *>().size()
                            + window->findChildren<QAbstractButton *>().size()
                            + window->findChildren<QComboBox *>().size());
}

void checkControls(benchmark::State &state, QWidget *window)
{
    if (!window->isVisible() || controlsOf(window) < sizeOf(state))
        state.SkipWithError("the page is not shown");
}

/// The settings window with Find and `count` items on pages of 100, of which the first is empty.
class FindWindow
{
public:
    explicit FindWindow(int count) : mFlags(count)
    {
        constexpr int sPageSize = 100;
        mPrevious = QDir::currentPath();
        QDir::setCurrent(mFolder.path());
        mManager.windowFeatures = MtConf::FindFeature;
        mManager.addMajorConfItemIfNotExist(emptyPageName());
        for (int i = 0; i < count; ++i)
            mManager
                .addConfBool("Show border", &mFlags[i], QStringLiteral("Page%1").arg(i / sPageSize),
                             QStringLiteral("Item%1").arg(i))
                ->setHelp("Draws a line around the captured window, in the colour of the border");
        mManager.ShowWindow();
        finishShowing();
        field()->setFocus();
        finishShowing();
    }
    ~FindWindow()
    {
        mManager.closeConfigWindow();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        clearStore();
        QDir::setCurrent(mPrevious);
    }
    Q_DISABLE_COPY(FindWindow)

    static QLineEdit *field()
    {
        return MtConf::ConfigurationWindow::instance()->findChild<QLineEdit *>(
            QStringLiteral("FindField"));
    }
    static void type(QChar character)
    {
        QKeyEvent press(QEvent::KeyPress, character.toUpper().unicode(), Qt::NoModifier, character);
        QApplication::sendEvent(field(), &press);
    }

private:
    QTemporaryDir mFolder;
    QString mPrevious;
    QVector<bool> mFlags;
    MtConf::MtConfManage mManager;
};

/// Types one key into Find. The first one is found in every item.
void typeIntoFind(benchmark::State &state)
{
    const QString word = QStringLiteral("border");
    FindWindow window(sizeOf(state));
    int typed = 0;
    for (auto _ : state) {
        FindWindow::type(word.at(typed));
        finishShowing();
        if (++typed < word.size())
            continue;
        state.PauseTiming();
        typed = 0;
        if (FindWindow::field()->text() != word)
            state.SkipWithError("the keys are not typed");
        FindWindow::field()->clear();
        finishShowing();
        state.ResumeTiming();
    }
    countEntries(state);
}

/// What Find is compared with: a page of 200 rows.
void buildPage(benchmark::State &state)
{
    constexpr int sRows = 200;
    LibraryWindow window(sRows);
    window.open();
    for (auto _ : state) {
        state.PauseTiming();
        window.leavePage();
        finishShowing();
        state.ResumeTiming();
        window.showPage();
        finishShowing();
    }
    countEntries(state);
    window.close();
}

template<class Window> void firstShowing(benchmark::State &state)
{
    Window window(sizeOf(state));
    for (auto _ : state) {
        window.open();
        finishShowing();
        state.PauseTiming();
        checkControls(state, window.widget());
        window.close();
        state.ResumeTiming();
    }
    countEntries(state);
}

template<class Window> void switchPage(benchmark::State &state)
{
    Window window(sizeOf(state));
    window.open();
    for (auto _ : state) {
        state.PauseTiming();
        window.leavePage();
        finishShowing();
        state.ResumeTiming();
        window.showPage();
        finishShowing();
    }
    checkControls(state, window.widget());
    countEntries(state);
    window.close();
}

template<class Window> void switchLanguage(benchmark::State &state)
{
    Window window(sizeOf(state));
    window.open();
    finishShowing();
    MarkingTranslator translator;
    bool marked = false;
    for (auto _ : state) {
        marked = !marked;
        if (marked)
            QCoreApplication::installTranslator(&translator);
        else
            QCoreApplication::removeTranslator(&translator);
        window.translate();
        finishShowing();
    }
    checkControls(state, window.widget());
    countEntries(state);
    QCoreApplication::removeTranslator(&translator);
    window.close();
}

template<class Window> void switchTheme(benchmark::State &state)
{
    Window window(sizeOf(state));
    window.open();
    finishShowing();
    bool dark = false;
    for (auto _ : state) {
        dark = !dark;
        window.setTheme(dark ? QThemeCtrl::Theme::Dark : QThemeCtrl::Theme::Light);
        finishShowing();
    }
    checkControls(state, window.widget());
    countEntries(state);
    window.close();
    QThemeCtrl::instance()->setTheme(QThemeCtrl::Theme::Light);
}

} // namespace

void addWindowBenchmarks()
{
    addBenchmark("firstShowing", "library", firstShowing<LibraryWindow>, {20});
    addBenchmark("firstShowing", "bare", firstShowing<BareWindow>, {20});
    addBenchmark("firstShowingModern", "library", firstShowing<ModernWindow>, {20});
    addBenchmark("firstShowingModern", "bare", firstShowing<BareModernWindow>, {20});
    addBenchmark("switchPage", "library", switchPage<LibraryWindow>, {20, 200, 1000});
    addBenchmark("switchPage", "bare", switchPage<BareWindow>, {20, 200, 1000});
    addBenchmark("switchPageModern", "library", switchPage<ModernWindow>, {20, 200, 1000});
    addBenchmark("switchPageModern", "bare", switchPage<BareModernWindow>, {20, 200, 1000});
    addBenchmark("typeIntoFind", "library", typeIntoFind, {100, 10000});
    addBenchmark("typeIntoFind", "bare", buildPage, {100, 10000});
    addBenchmark("switchLanguage", "library", switchLanguage<LibraryWindow>, {20, 200});
    addBenchmark("switchLanguage", "bare", switchLanguage<BareWindow>, {20, 200});
    addBenchmark("switchTheme", "library", switchTheme<LibraryWindow>, {20, 200});
    addBenchmark("switchTheme", "bare", switchTheme<BareWindow>, {20, 200});
}
