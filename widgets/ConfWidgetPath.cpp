#include <MaltoConfiguration/widgets/ConfWidgetPath.h>

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>

namespace MtConf {

namespace {

/// Returns the nearest existing folder that contains `path`, or `path` if it is one.
QString existingFolder(const QString &path)
{
    QFileInfo info(path);
    while (!info.isDir() && !info.isRoot())
        info.setFile(info.absolutePath());
    return info.absoluteFilePath();
}

} // namespace

ConfWidgetPath::ConfWidgetPath(ConfItem *item, QWidget *parent)
    : ConfWidgetText(item, parent), mBrowseButton(new QPushButton(this))
{
    setHasMessage();
    // A path is written from left to right in every language.
    field()->setLayoutDirection(Qt::LeftToRight);
    layout()->addWidget(mBrowseButton);
    connect(mBrowseButton, &QAbstractButton::clicked, this, &ConfWidgetPath::browse);
    retranslateUi();
    loadConf(); // again: the constructor of the base class cannot convert a path
}

ConfigItemWidget *ConfWidgetPath::CreatConfWidget(ConfItem *item, QWidget *parent)
{
    return create<ConfWidgetPath>(item, parent);
}

void ConfWidgetPath::retranslateUi()
{
    ConfWidgetText::retranslateUi();
    mBrowseButton->setText(tr("Browse..."));
    mBrowseButton->setAccessibleName(mBrowseButton->text());
    describeText(readValue<QString>());
}

QString ConfWidgetPath::toField(const QString &stored) const
{
    return QDir::toNativeSeparators(stored);
}

QString ConfWidgetPath::toStored(const QString &typed) const
{
    const QString path = QDir::fromNativeSeparators(typed);
    if (path == QLatin1String("~") || path.startsWith(QLatin1String("~/")))
        return QDir::homePath() + path.mid(1);
    return path;
}

void ConfWidgetPath::describeText(const QString &text)
{
    showMessage(problemOf(text));
}

void ConfWidgetPath::showEvent(QShowEvent *event)
{
    ConfWidgetText::showEvent(event);
    // The label of the message is created after this widget.
    describeText(readValue<QString>());
}

PathKind ConfWidgetPath::kind() const
{
    return static_cast<PathKind>(mItem->properties.value(QStringLiteral("Malto.PathKind")).toInt());
}

/// Returns why the path cannot be used as it is; empty if it can be used, or if there is none.
QString ConfWidgetPath::problemOf(const QString &path) const
{
    if (path.isEmpty())
        return QString();
    const QFileInfo info(path);
    if (kind() == PathKind::Folder) {
        if (!info.exists())
            return tr("This folder does not exist.");
        return info.isDir() ? QString() : tr("This is a file, not a folder.");
    }
    // A bundle, such as an application on macOS, is a folder that users see as a file.
    if (info.isDir() && !info.isBundle())
        return tr("This is a folder, not a file.");
    if (kind() == PathKind::NewFile)
        return info.dir().exists() ? QString() : tr("The folder of this file does not exist.");
    return info.exists() ? QString() : tr("This file does not exist.");
}

void ConfWidgetPath::browse()
{
    // What was typed is where the dialog starts. A callback may delete the editor.
    const QPointer<ConfWidgetPath> self(this);
    commit();
    if (!self)
        return;
    // Not exec(): while the dialog is open, the editor may be deleted, and the dialog with it.
    auto *dialog = new QFileDialog(this, translatedText());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    const bool isFolder = kind() == PathKind::Folder;
    dialog->setFileMode(isFolder                      ? QFileDialog::Directory
                        : kind() == PathKind::NewFile ? QFileDialog::AnyFile
                                                      : QFileDialog::ExistingFile);
    dialog->setOption(QFileDialog::ShowDirsOnly, isFolder);
    if (kind() == PathKind::NewFile) {
        dialog->setAcceptMode(QFileDialog::AcceptSave);
        // The file is only named here.
        dialog->setOption(QFileDialog::DontConfirmOverwrite);
    }
    const QString filters = mItem->properties.value(QStringLiteral("Malto.Filters")).toString();
    if (!filters.isEmpty() && !isFolder)
        dialog->setNameFilter(QObject::tr(filters.toUtf8().constData()));
    const QString path = readValue<QString>();
    if (!path.isEmpty()) {
        dialog->setDirectory(existingFolder(path));
        if (!isFolder && !QFileInfo(path).isDir())
            dialog->selectFile(QFileInfo(path).fileName());
    }
    connect(dialog, &QFileDialog::fileSelected, this, &ConfWidgetPath::choose);
    dialog->open();
}

void ConfWidgetPath::choose(const QString &path)
{
    setFieldText(toField(path));
    onTyped();
    commit();
}

} // namespace MtConf
