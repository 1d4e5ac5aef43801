#include "ProfilesPage.h"

#include "ProfileStore.h"
#include "designScale.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/widgets/QSpinBoxDisableWheel.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <OrvUtils/ColorSelectButton.h>
#include <OrvUtils/QThemeCtrl.h>

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include <algorithm>
#include <functional>

namespace {

constexpr int sLargestSide = 16384; // pixels

/// Returns an icon of `size` logical pixels for a screen with the device pixel ratio `ratio`.
QIcon swatch(const QColor &color, int size, qreal ratio)
{
    const QRect rect(0, 0, size, size);
    QPixmap pixmap(rect.size() * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    // The white border keeps the accent colour visible in the selected row.
    painter.setPen(QPen(Qt::white, qMax(1, size / 8)));
    painter.setBrush(color);
    painter.drawEllipse(rect.adjusted(1, 1, -1, -1));
    painter.end();
    QIcon icon(pixmap);
    // Otherwise Qt tints the icon of the selected row.
    icon.addPixmap(pixmap, QIcon::Selected);
    return icon;
}

QSpinBox *makeSideBox(QWidget *parent)
{
    auto *box = new QSpinBoxDisableWheel(parent);
    box->setFocusPolicy(Qt::StrongFocus);
    box->setRange(1, sLargestSide);
    return box;
}

/// Makes rows as wide as the list, which elides their texts.
class NarrowRowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return {0, QStyledItemDelegate::sizeHint(option, index).height()};
    }
};

} // namespace

ProfilesPage::ProfilesPage(ProfileStore &profiles, QWidget *parent)
    : QWidget(parent), mProfiles(profiles), mTitle(new QLabel(this)), mList(new QListWidget(this)),
      mAdd(new QPushButton(this)), mRemove(new QPushButton(this)), mRestore(new QPushButton(this)),
      mHint(new QLabel(this)), mValues(new QGroupBox(this)), mNameLabel(new QLabel(mValues)),
      mName(new QLineEdit(mValues)), mRename(new QPushButton(mValues)),
      mNameError(new QLabel(mValues)), mWidthLabel(new QLabel(mValues)),
      mWidth(makeSideBox(mValues)), mHeightLabel(new QLabel(mValues)),
      mHeight(makeSideBox(mValues)), mColorLabel(new QLabel(mValues)),
      mColor(new ColorSelectButton(mValues)), mPointer(new QCheckBox(mValues)),
      mState(new QLabel(mValues)), mNotice(new QLabel(this))
{
    const int spacing = qRound(8 * designScale(parent));
    mTitle->setProperty("ClassLabel", QStringLiteral("normal"));
    mHint->setAlignment(Qt::AlignCenter);
    mHint->setWordWrap(true);
    mNotice->setObjectName(QStringLiteral("profileNotice"));
    mNotice->setTextFormat(Qt::PlainText);
    mNotice->setWordWrap(true);
    mNotice->hide();

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    layout->addWidget(mTitle, 0, 0, 1, 2);
    layout->addWidget(makeListSide(), 1, 0);
    layout->addWidget(makeValueSide(), 1, 1, Qt::AlignTop);
    layout->addWidget(mHint, 1, 1);
    layout->addWidget(mNotice, 2, 0, 1, 2);
    layout->setColumnStretch(0, 2);
    layout->setColumnStretch(1, 3);

    retranslate();
    applySheet();
    connectAll();
    refresh();
    window()->installEventFilter(this);
}

ProfilesPage::~ProfilesPage()
{
    storeName();
}

bool ProfilesPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == window() && event->type() == QEvent::Close)
        storeName();
    return QWidget::eventFilter(watched, event);
}

QWidget *ProfilesPage::makeListSide()
{
    auto *side = new QWidget(this);
    auto *layout = new QGridLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(qRound(6 * designScale(parentWidget())));
    layout->addWidget(mList, 0, 0, 1, 2);
    layout->addWidget(mAdd, 1, 0);
    layout->addWidget(mRemove, 1, 1);
    layout->addWidget(mRestore, 2, 0, 1, 2);
    mList->setObjectName(QStringLiteral("profileList"));
    mAdd->setObjectName(QStringLiteral("addProfile"));
    mRemove->setObjectName(QStringLiteral("removeProfile"));
    mRestore->setObjectName(QStringLiteral("restoreProfiles"));
    mList->setItemDelegate(new NarrowRowDelegate(mList));
    mList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return side;
}

QWidget *ProfilesPage::makeValueSide()
{
    mValues->setObjectName(QStringLiteral("ConfigGroupBox"));
    mName->setObjectName(QStringLiteral("profileName"));
    mRename->setObjectName(QStringLiteral("renameProfile"));
    mNameError->setObjectName(QStringLiteral("profileNameError"));
    mNameError->setWordWrap(true);
    mWidth->setObjectName(QStringLiteral("profileWidth"));
    mHeight->setObjectName(QStringLiteral("profileHeight"));
    mColor->setProperty("class", QStringLiteral("ColorSelectButton"));
    mState->setObjectName(QStringLiteral("profileState"));
    const int spacing = qRound(12 * designScale(parentWidget()));
    auto *grid = new QGridLayout(mValues);
    grid->setContentsMargins(spacing, spacing, spacing, spacing);
    grid->setSpacing(spacing);
    grid->addWidget(mNameLabel, 0, 0);
    grid->addWidget(mName, 0, 1);
    grid->addWidget(mRename, 0, 2);
    grid->addWidget(mNameError, 1, 1, 1, 2);
    grid->addWidget(mWidthLabel, 2, 0);
    grid->addWidget(mWidth, 2, 1, 1, 2, Qt::AlignLeft);
    grid->addWidget(mHeightLabel, 3, 0);
    grid->addWidget(mHeight, 3, 1, 1, 2, Qt::AlignLeft);
    grid->addWidget(mColorLabel, 4, 0);
    grid->addWidget(mColor, 4, 1, 1, 2, Qt::AlignLeft);
    grid->addWidget(mPointer, 5, 0, 1, 3);
    grid->addWidget(mState, 6, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    for (QLabel *label : {mNameLabel, mWidthLabel, mHeightLabel, mColorLabel})
        label->setProperty("ConfigItemWidgetLabel", QStringLiteral("1"));
    return mValues;
}

void ProfilesPage::connectAll()
{
    connect(&mProfiles, &ProfileStore::profilesChanged, this, &ProfilesPage::refresh);
    connect(QThemeCtrl::instance(), &QThemeCtrl::sigThemeChanged, this, &ProfilesPage::applySheet);
    connect(mList, &QListWidget::currentItemChanged, this, &ProfilesPage::showProfile);
    connect(mAdd, &QPushButton::clicked, this, &ProfilesPage::addProfile);
    connect(mRemove, &QPushButton::clicked, this, &ProfilesPage::askToRemove);
    connect(mRestore, &QPushButton::clicked, this, &ProfilesPage::askToRestore);
    connect(mName, &QLineEdit::textChanged, this, &ProfilesPage::checkName);
    connect(mName, &QLineEdit::textEdited, mNotice, &QLabel::hide);
    connect(mName, &QLineEdit::editingFinished, this, &ProfilesPage::storeName);
    connect(mRename, &QPushButton::clicked, this, &ProfilesPage::storeName);
    const auto connectKey = [this](Qt::Key key, void (ProfilesPage::*onKey)()) {
        auto *shortcut = new QShortcut(key, mList);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, onKey);
    };
    connectKey(Qt::Key_Delete, &ProfilesPage::askToRemove);
    connectKey(Qt::Key_F2, &ProfilesPage::editName);
    const auto connectSide = [this](QSpinBox *box, const QString &member) {
        connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this,
                [this, member](int side) { mProfiles.setValue(mShownKey, member, side); });
    };
    connectSide(mWidth, QStringLiteral("width"));
    connectSide(mHeight, QStringLiteral("height"));
    connect(mColor, &ColorSelectButton::sigColorChanged, this, [this](const QColor &color) {
        mProfiles.setValue(mShownKey, QStringLiteral("color"), color.name(QColor::HexArgb));
    });
    connect(mPointer, &QCheckBox::clicked, this, [this](bool checked) {
        mProfiles.setValue(mShownKey, QStringLiteral("pointer"), checked);
    });
}

void ProfilesPage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        refresh();
    }
}

void ProfilesPage::retranslate()
{
    mTitle->setText(tr("Profiles"));
    mAdd->setText(tr("Add"));
    mRemove->setText(tr("Delete"));
    mRestore->setText(tr("Restore presets"));
    mHint->setText(tr("There is no profile.\nAdd one, or restore the presets."));
    mNameLabel->setText(tr("Name"));
    mRename->setText(tr("Rename"));
    mWidthLabel->setText(tr("Width"));
    mHeightLabel->setText(tr("Height"));
    mColorLabel->setText(tr("Frame"));
    for (QSpinBox *side : {mWidth, mHeight})
        side->setSuffix(QObject::tr(" px"));
    mPointer->setText(tr("Include the mouse pointer"));
}

void ProfilesPage::applySheet()
{
    // The sheets of the two looks have different units.
    constexpr double sPointsPerPixel = 0.75;
    const auto *settings = qobject_cast<const MtConf::ConfigurationWindow *>(window());
    const bool isModern = settings && settings->manager()
                          && settings->manager()->windowLook == MtConf::ModernLook;
    const double scale = designScale(parentWidget());
    if (isModern)
        QThemeCtrl::instance()->handleQssFile(this, {QStringLiteral(":/demo/ModernProfilesPage")},
                                              scale * sPointsPerPixel);
    else
        QThemeCtrl::instance()->handleQssFile(this, {QStringLiteral(":/demo/ProfilesPage")}, scale);
}

void ProfilesPage::refresh()
{
    const QString shown = mShownKey;
    const int row = mList->currentRow();
    {
        const QSignalBlocker blocker(mList);
        mList->clear();
        const int iconSize = qRound(11 * designScale(parentWidget()));
        mList->setIconSize(QSize(iconSize, iconSize));
        const QStringList keys = mProfiles.keys();
        for (const QString &key : keys) {
            const QColor color(mProfiles.profile(key).value(QLatin1String("color")).toString());
            const QIcon icon = swatch(color, iconSize, devicePixelRatioF());
            auto *item = new QListWidgetItem(icon, mProfiles.name(key), mList);
            item->setData(Qt::UserRole, key);
            item->setToolTip(item->text()); // the row may be too narrow for it
        }
        selectKey(shown);
        if (!mList->currentItem() && mList->count() > 0)
            mList->setCurrentRow(qBound(0, row, mList->count() - 1));
    }
    showProfile();
}

void ProfilesPage::showProfile()
{
    const QString key = currentKey();
    const bool another = key != mShownKey;
    if (another)
        leaveName();
    mShownKey = key;
    mValues->setVisible(!key.isEmpty());
    mHint->setVisible(key.isEmpty());
    mRemove->setEnabled(!key.isEmpty());

    const QJsonObject profile = mProfiles.profile(key);
    const QSignalBlocker widthBlocker(mWidth);
    const QSignalBlocker heightBlocker(mHeight);
    // Keep a name that is being typed when other values of the profile change.
    // An unchanged text keeps its selection.
    if (!mName->isModified() && mName->text() != mProfiles.name(key))
        mName->setText(mProfiles.name(key));
    mWidth->setValue(profile.value(QLatin1String("width")).toInt());
    mHeight->setValue(profile.value(QLatin1String("height")).toInt());
    mColor->setColor(QColor(profile.value(QLatin1String("color")).toString()));
    mPointer->setChecked(profile.value(QLatin1String("pointer")).toBool());
    mState->setText(mProfiles.isUntouchedPreset(key) ? tr("A preset, unchanged.")
                                                     : tr("Yours, or a changed preset."));
    checkName();
}

void ProfilesPage::checkName()
{
    const QString error = mProfiles.nameError(mShownKey, mName->text());
    mNameError->setText(error);
    mNameError->setVisible(!error.isEmpty());
    mRename->setEnabled(error.isEmpty() && mName->text().trimmed() != mProfiles.name(mShownKey));
}

/// Stores the name that the user has typed, if the profile can have it.
void ProfilesPage::storeName()
{
    if (!mName->isModified() || !mProfiles.nameError(mShownKey, mName->text()).isEmpty())
        return;
    mName->setModified(false);
    mProfiles.rename(mShownKey, mName->text());
    checkName();
}

/// Stores the name before the page shows another profile, or says why it is not stored.
void ProfilesPage::leaveName()
{
    storeName();
    const bool isLost = mName->isModified() && mProfiles.keys().contains(mShownKey);
    if (isLost)
        mNotice->setText(
            tr("“%1” keeps its name. %2")
                .arg(mProfiles.name(mShownKey), mProfiles.nameError(mShownKey, mName->text())));
    mNotice->setVisible(isLost);
    mName->setModified(false);
}

void ProfilesPage::addProfile()
{
    const QString key = mProfiles.add();
    refresh();
    selectKey(key);
    editName();
}

void ProfilesPage::editName()
{
    mName->setFocus();
    mName->selectAll();
}

void ProfilesPage::askToRemove()
{
    const QString key = mShownKey;
    if (key.isEmpty())
        return;
    ask(tr("Delete the profile “%1”?").arg(mProfiles.name(key)), tr("Delete"),
        [this, key] { mProfiles.remove(key); });
}

void ProfilesPage::askToRestore()
{
    const QStringList keys = mProfiles.keys();
    const auto isPreset = [this](const QString &key) { return mProfiles.isUntouchedPreset(key); };
    const auto lost = std::count_if(keys.cbegin(), keys.cend(), std::not_fn(isPreset));
    if (lost == 0)
        mProfiles.restorePresets();
    else
        ask(tr("Restore the presets? This deletes your own profiles and undoes your changes of the "
               "presets."),
            tr("Restore presets"), [this] { mProfiles.restorePresets(); });
}

/// Asks `question` and calls `onYes` if the user chooses the button `action`. The other button is
/// the default. The page may be deleted meanwhile, and the question with it.
void ProfilesPage::ask(const QString &question, const QString &action,
                       const std::function<void()> &onYes)
{
    auto *box = new QMessageBox(QMessageBox::Question, window()->windowTitle(), question,
                                QMessageBox::Cancel, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setDefaultButton(QMessageBox::Cancel);
    const QPushButton *yes = box->addButton(action, QMessageBox::AcceptRole);
    connect(yes, &QPushButton::clicked, this, onYes);
    box->open();
}

QString ProfilesPage::currentKey() const
{
    const QListWidgetItem *item = mList->currentItem();
    return item ? item->data(Qt::UserRole).toString() : QString();
}

void ProfilesPage::select(const QString &name)
{
    const QStringList keys = mProfiles.keys();
    for (const QString &key : keys) {
        if (mProfiles.name(key) == name)
            selectKey(key);
    }
    mList->setFocus();
}

void ProfilesPage::selectKey(const QString &key)
{
    for (int row = 0; row < mList->count(); ++row) {
        if (mList->item(row)->data(Qt::UserRole).toString() == key)
            mList->setCurrentRow(row);
    }
}
