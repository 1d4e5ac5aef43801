#include "MainWindow.h"

#include "BoundValueModel.h"
#include "DemoSession.h"
#include "LogPane.h"
#include "designScale.h"

#include <MaltoConfiguration/inputs/InputRegistry.h>
#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <OrvUtils/QThemeCtrl.h>

#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QTableView>
#include <QVBoxLayout>

MainWindow::MainWindow(DemoSession &session, const MessageLog &log)
    : mSession(session), mModel(new BoundValueModel(session.manager(), this)),
      mTable(new QTableView(this)), mLogPane(new LogPane(log, this)),
      mValuesCaption(new QLabel(this)), mLogCaption(new QLabel(this))
{
    setWindowIcon(QIcon(QStringLiteral(":/icon/AppIcon")));
    buildCentre();
    buildMenu();
    // The settings window then tells which hotkeys this window's menus use.
    auto *const inputs = new MtConf::InputRegistry(&session.manager());
    inputs->addActions(this);
    retranslate();
    applySheet();
    onSettingsChanged();
    const double scale = designScale(this);
    resize(qRound(480 * scale), qRound(500 * scale));
    connect(QThemeCtrl::instance(), &QThemeCtrl::sigThemeChanged, this, &MainWindow::applySheet);
    connect(&session.watcher(), &SettingsWatcher::settingsChanged, this,
            &MainWindow::onSettingsChanged);
    connect(&session, &DemoSession::hotkeyPressed, this, &MainWindow::onHotkeyPressed);
}

void MainWindow::buildCentre()
{
    const double scale = designScale(this);
    mTable->setObjectName(QStringLiteral("boundValues"));
    mTable->setModel(mModel);
    mTable->setAlternatingRowColors(true);
    mTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    mTable->setShowGrid(false);
    mTable->setWordWrap(false);
    mTable->verticalHeader()->hide();
    mTable->verticalHeader()->setDefaultSectionSize(qRound(19 * scale));
    mTable->horizontalHeader()->setHighlightSections(false);
    mTable->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    mTable->horizontalHeader()->setStretchLastSection(true);
    mTable->setColumnWidth(BoundValueModel::KeyColumn, qRound(200 * scale));
    mTable->setColumnWidth(BoundValueModel::ValueColumn, qRound(170 * scale));
    mLogPane->setObjectName(QStringLiteral("log"));

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(mValuesCaption);
    buttons->addStretch();
    mRestoreButton = addButton("restoreAll");
    mSaveButton = addButton("save");
    mSettingsButton = addButton("showSettings");
    for (QPushButton *button : {mRestoreButton, mSaveButton, mSettingsButton})
        buttons->addWidget(button);
    mSettingsButton->setDefault(true);

    auto *lower = new QWidget(this);
    auto *lowerLayout = new QVBoxLayout(lower);
    lowerLayout->setContentsMargins(0, qRound(4 * scale), 0, 0);
    lowerLayout->addWidget(mLogCaption);
    lowerLayout->addWidget(mLogPane);
    auto *splitter = new QSplitter(Qt::Vertical, this);
    splitter->addWidget(mTable);
    splitter->addWidget(lower);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);

    for (QLabel *caption : {mValuesCaption, mLogCaption})
        caption->setObjectName(QStringLiteral("caption"));
    auto *centre = new QWidget(this);
    centre->setObjectName(QStringLiteral("centralwidget"));
    auto *layout = new QVBoxLayout(centre);
    const int margin = qRound(10 * scale);
    layout->setContentsMargins(margin, margin, margin, qRound(4 * scale));
    layout->setSpacing(qRound(8 * scale));
    layout->addLayout(buttons);
    layout->addWidget(splitter);
    setCentralWidget(centre);
}

QPushButton *MainWindow::addButton(const char *name)
{
    auto *button = new QPushButton(this);
    button->setObjectName(QLatin1String(name));
    return button;
}

void MainWindow::buildMenu()
{
    mFileMenu = menuBar()->addMenu(QString());
    mSettingsAction = mSession.actions().showSettings;
    connect(mSettingsAction, &QAction::triggered, this, [this] { showSettings(QString()); });
    mSaveAction = mSession.actions().save;
    connect(mSaveAction, &QAction::triggered, this, &MainWindow::save);
    mFileMenu->addActions({mSettingsAction, mSaveAction});
    mRestoreAction = mFileMenu->addAction(QString(), this, &MainWindow::restoreAll);
    mFileMenu->addSeparator();
    mQuitAction = mSession.actions().quit;
    connect(mQuitAction, &QAction::triggered, this, &QWidget::close);
    mFileMenu->addAction(mQuitAction);

    mThemeMenu = menuBar()->addMenu(QString());
    mThemes = new QActionGroup(this);
    for (int theme = 0; theme <= static_cast<int>(QThemeCtrl::Theme::Dark); ++theme) {
        QAction *action = mThemeMenu->addAction(QString());
        action->setCheckable(true);
        action->setData(theme);
        mThemes->addAction(action);
    }
    connect(mThemes, &QActionGroup::triggered, this,
            [this](QAction *action) { mSession.chooseTheme(action->data().toInt()); });
    connect(mSettingsButton, &QPushButton::clicked, this, [this] { showSettings(QString()); });
    connect(mSaveButton, &QPushButton::clicked, this, &MainWindow::save);
    connect(mRestoreButton, &QPushButton::clicked, this, &MainWindow::restoreAll);
}

void MainWindow::retranslate()
{
    setWindowTitle(tr("Quorvi Capture"));
    mLogCaption->setText(tr("Log"));
    mSettingsButton->setText(tr("Settings…"));
    mSaveButton->setText(tr("Save"));
    mRestoreButton->setText(tr("Restore all"));
    mFileMenu->setTitle(tr("&File"));
    mSettingsAction->setText(tr("&Settings…"));
    mSaveAction->setText(tr("Sa&ve"));
    mRestoreAction->setText(tr("&Restore all…"));
    mQuitAction->setText(tr("&Quit"));
    mThemeMenu->setTitle(tr("&Theme"));
    const QStringList names{tr("Follow the system"), tr("Light"), tr("Dark")};
    const QList<QAction *> themes = mThemes->actions();
    for (QAction *action : themes)
        action->setText(names.value(action->data().toInt()));
}

void MainWindow::applySheet()
{
    QThemeCtrl::instance()->handleQssFile(
        this, {QStringLiteral(":/malto/qss/CommonWindow"), QStringLiteral(":/demo/MainWindow")},
        designScale(this));
    mLogPane->refresh();
}

void MainWindow::onSettingsChanged()
{
    mModel->refresh();
    mValuesCaption->setText(
        tr("Variables — %1 of %2 changed").arg(mModel->changedCount()).arg(mModel->rowCount()));
    const QList<QAction *> themes = mThemes->actions();
    for (QAction *action : themes)
        action->setChecked(action->data().toInt() == mSession.settings().theme);
}

void MainWindow::onHotkeyPressed(const QString &key, const char *label)
{
    const int row = mModel->rowOf(key);
    mTable->selectRow(row);
    statusBar()->showMessage(
        tr("Hotkey pressed: %1 (%2)")
            .arg(QCoreApplication::translate("QObject", label),
                 mModel->index(row, BoundValueModel::ValueColumn).data().toString()));
}

void MainWindow::showSettings(const QString &page)
{
    const bool isFirst = !MtConf::ConfigurationWindow::instance()
                         && !QFile::exists(QStringLiteral("ConfigurationWindowConfig.ini"));
    QWidget *window = mSession.manager().ShowWindow(page);
    window->activateWindow();
    if (!isFirst || !isVisible())
        return;
    const QRect room = screen()->availableGeometry();
    const int gap = qRound(8 * designScale(this));
    const int total = frameGeometry().width() + gap + window->frameGeometry().width();
    if (total > room.width())
        return;
    const int left = room.left() + (room.width() - total) / 2;
    move(left, window->y());
    window->move(left + frameGeometry().width() + gap, window->y());
}

void MainWindow::save()
{
    const QString path = QDir::toNativeSeparators(ConfStorage::instance()->mLocalSaveFile);
    statusBar()->showMessage(mSession.save() ? tr("Saved to %1").arg(path)
                                             : tr("Could not write %1").arg(path));
}

void MainWindow::restoreAll()
{
    const QPointer<MainWindow> self(this);
    const QPointer<QMessageBox> question = new QMessageBox(
        QMessageBox::Question, windowTitle(),
        tr("Restore the defaults of all settings and the presets of the profiles?"),
        QMessageBox::Yes | QMessageBox::No, this);
    question->setDefaultButton(QMessageBox::No);
    const int answer = question->exec();
    if (!self || !question)
        return;
    question->deleteLater();
    if (answer == QMessageBox::Yes)
        mSession.restoreAll();
}

void MainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange && mThemes) {
        retranslate();
        mModel->retranslate();
        onSettingsChanged();
    }
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    mSession.manager().closeConfigWindow();
    save();
    QMainWindow::closeEvent(event);
}
