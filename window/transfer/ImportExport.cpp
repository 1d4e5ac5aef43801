#include "ImportExport_p.h"

#include "ImportDialog_p.h"
#include "MaltoConfiguration/manage/ValueOrigins_p.h"
#include "MaltoConfiguration/widgets/HostCode_p.h"
#include "MaltoConfiguration/window/history/HotkeyItems_p.h"
#include "MaltoConfiguration/window/history/SettingsHistory_p.h"
#include "SettingsFile_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/store/ConfOperation.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <OrvUtils/QThemeCtrl.h>

#include <QDir>
#include <QDynamicPropertyChangeEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QListView>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <QStyle>
#include <QVBoxLayout>

#include <optional>
#include <utility>

namespace MtConf {

namespace {

constexpr QSize sDialogSize(760, 520); // in pixels at 96 dots per inch

/// The property of the list of classes that tells whether it shows only icons.
constexpr char sNarrow[] = "narrow";

QStringList formerNames(const MtConfManage &manager)
{
    QStringList names;
    for (const ConfItem &item : manager.items)
        names += item.formerNames;
    return names;
}

QPushButton *newButton(const char *name, QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setProperty("class", QStringLiteral("QuietButton"));
    button->setFlat(true);
    return button;
}

} // namespace

ImportExport::ImportExport(ConfigurationWindow *window)
    : WindowFeature(window), mFoot(new QWidget(window->centralWidget())),
      mLayout(new QBoxLayout(QBoxLayout::LeftToRight, mFoot)),
      mImport(newButton("btnImport", mFoot)), mExport(newButton("btnExport", mFoot))
{
    // Below each other, the stretch would take the room of the list.
    mFoot->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    mLayout->setContentsMargins(0, 0, 0, 0);
    mLayout->setSpacing(0);
    mLayout->addWidget(mImport, 0, Qt::AlignLeft);
    mLayout->addWidget(mExport, 0, Qt::AlignLeft);
    mLayout->addStretch(1);
    classColumn()->insertWidget(classColumn()->indexOf(classList()) + 1, mFoot);
    connect(mImport, &QAbstractButton::clicked, this, &ImportExport::importSettings);
    connect(mExport, &QAbstractButton::clicked, this, &ImportExport::exportSettings);
    classList()->installEventFilter(this);
    mFolder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!QFileInfo(mFolder).isDir())
        mFolder = QDir::homePath();
    retranslate();
}

void ImportExport::sheetApplied()
{
    dress(mFoot);
    arrange();
}

/// Places the buttons side by side, or below each other if the list is too narrow for their texts.
void ImportExport::arrange()
{
    mImport->ensurePolished();
    mExport->ensurePolished();
    const int width = mImport->sizeHint().width() + mExport->sizeHint().width();
    const bool fits = width <= qMin(classList()->width(), classList()->maximumWidth());
    mLayout->setDirection(fits ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

/// The sheet of the modern look has rules for all its widgets.
void ImportExport::dress(QWidget *widget) const
{
    if (manager() && manager()->windowLook == ClassicLook)
        QThemeCtrl::instance()->handleQssFile(widget, {QStringLiteral(":/malto/qss/ImportExport")},
                                              scale());
}

void ImportExport::retranslate()
{
    mImport->setText(tr("Import…"));
    mImport->setToolTip(tr("Import settings from a file"));
    mExport->setText(tr("Export…"));
    mExport->setToolTip(tr("Export the settings to a file"));
    arrange();
}

bool ImportExport::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::DynamicPropertyChange
        && static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName() == sNarrow)
        mFoot->setVisible(watched->property(sNarrow).toString() != QLatin1String("1"));
    if (event->type() == QEvent::Resize)
        arrange();
    return WindowFeature::eventFilter(watched, event);
}

/// Returns the chosen path; empty if there is none, or if the window was deleted meanwhile.
QString ImportExport::chooseFile(QFileDialog *dialog)
{
    const QPointer<ImportExport> self(this);
    const QPointer<QFileDialog> guard(dialog);
    dialog->setNameFilters({tr("Settings (*.json)"), tr("All files (*)")});
    dialog->setDefaultSuffix(QStringLiteral("json"));
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    if (!self || !guard)
        return QString();
    const QStringList files = dialog->selectedFiles();
    dialog->deleteLater();
    if (!isAccepted || files.isEmpty() || !manager())
        return QString();
    mFolder = QFileInfo(files.first()).path();
    return files.first();
}

void ImportExport::exportSettings()
{
    if (!commitEditors() || !manager())
        return;
    auto *dialog = new QFileDialog(window(), tr("Export settings"), mFolder);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(SettingsFile::proposedName());
    const QString path = chooseFile(dialog);
    if (path.isEmpty())
        return;
    const QString error = SettingsFile(path).write(*ConfStorage::instance());
    if (!error.isEmpty())
        tell(QMessageBox::Warning, tr("Export settings"), error);
}

void ImportExport::importSettings()
{
    if (!commitEditors() || !manager())
        return;
    auto *dialog = new QFileDialog(window(), tr("Import settings"), mFolder);
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::ExistingFile);
    const QString path = chooseFile(dialog);
    if (path.isEmpty())
        return;
    ConfStorage *const store = ConfStorage::instance();
    const SettingsFile::Content content = SettingsFile(path).read(store->mMaxFileSize);
    if (!content.error.isEmpty()) {
        tell(QMessageBox::Warning, tr("Import settings"), content.error);
        return;
    }
    const SettingsImport import(*store, content.dump, formerNames(*manager()));
    const QStringList keys = chooseChanges(path, import);
    if (!keys.isEmpty())
        apply(import, keys);
}

/// Returns the keys to import; none if the user cancels, or if the window was deleted meanwhile.
QStringList ImportExport::chooseChanges(const QString &path, const SettingsImport &import)
{
    const QString fileName = QFileInfo(path).fileName();
    const QStringList notes = importNotes(*manager(), import.leftOut());
    if (import.changes().isEmpty()) {
        const QStringList lines = QStringList(
                                      tr("The file \"%1\" changes nothing here.").arg(fileName))
                                  + notes;
        tell(QMessageBox::Information, tr("Import settings"), lines.join(QLatin1Char('\n')));
        return QStringList();
    }
    const QPointer<ImportExport> self(this);
    const QPointer<ImportDialog> dialog(
        new ImportDialog(fileName, importRows(*manager(), import.changes()), notes, window()));
    dress(dialog);
    const QSize frame = window()->frameGeometry().size() - window()->size();
    const QSize room = window()->screen()->availableSize() - frame;
    dialog->resize((sDialogSize * scaled(100) / 100).boundedTo(room));
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    if (!self || !dialog)
        return QStringList();
    dialog->deleteLater();
    return isAccepted && manager() ? dialog->checkedKeys() : QStringList();
}

void ImportExport::apply(const SettingsImport &import, const QStringList &keys)
{
    const QPointer<ImportExport> self(this);
    int refused = 0;
    {
        // One step with what the page stores in answer, such as the largest number that fits.
        const ConfOperation operation(ConfStorage::instance());
        refused = load(import, keys);
        if (self)
            rebuildPage();
    }
    if (self && refused > 0)
        tell(QMessageBox::Warning, tr("Import settings"),
             tr("Settings that could not be imported: %1").arg(refused));
}

/// Returns how many settings were refused. Callbacks may delete the window.
int ImportExport::load(const SettingsImport &import, const QStringList &keys)
{
    const HostCodeScope scope(hostCode());
    const QPointer<MtConfManage> host(manager());
    std::optional<SettingsHistory::Recording> recording;
    if (auto *history = window()->findChild<SettingsHistory *>())
        recording.emplace(history);
    const ValueOrigins::Scope originScope(origins(), ValueOrigins::Origin::Changed);
    const int refused = import.apply(ConfStorage::instance(), keys).refusedCount;
    registerHotkeys(host, keys);
    return refused;
}

void ImportExport::tell(QMessageBox::Icon icon, const QString &title, const QString &text)
{
    const QPointer<QMessageBox> box(new QMessageBox(icon, title, text, QMessageBox::Ok, window()));
    box->setTextFormat(Qt::PlainText);
    box->exec();
    if (box)
        box->deleteLater();
}

} // namespace MtConf
