#include "StoredDataPage.h"

#include "SettingsWatcher.h"
#include "designScale.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QDir>
#include <QEvent>
#include <QFontDatabase>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QVBoxLayout>

StoredDataPage::StoredDataPage(const SettingsWatcher &watcher, QWidget *parent)
    : QWidget(parent), mTitle(new QLabel(this)), mPath(new QLabel(this)),
      mText(new QPlainTextEdit(this))
{
    mTitle->setProperty("ClassLabel", QStringLiteral("normal"));
    mPath->setText(QDir::toNativeSeparators(ConfStorage::instance()->mLocalSaveFile));
    mPath->setTextFormat(Qt::PlainText);
    mPath->setTextInteractionFlags(Qt::TextSelectableByMouse);
    mPath->setWordWrap(true);
    mPath->setStyleSheet(QStringLiteral("font-size: 12pt;"));
    mText->setObjectName(QStringLiteral("storedData"));
    mText->setReadOnly(true);
    mText->setLineWrapMode(QPlainTextEdit::NoWrap);
    // A style sheet, because the window's sheet overrides the font of every widget.
    mText->setStyleSheet(QStringLiteral("font-family: \"%1\", monospace; font-size: 11pt;")
                             .arg(QFontDatabase::systemFont(QFontDatabase::FixedFont).family()));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(qRound(6 * designScale(parent)));
    layout->addWidget(mTitle);
    layout->addWidget(mPath);
    layout->addWidget(mText, 1);
    retranslate();
    refresh();
    connect(&watcher, &SettingsWatcher::settingsChanged, this, &StoredDataPage::refresh);
}

void StoredDataPage::refresh()
{
    const QJsonObject stored = ConfStorage::instance()->dumpConf(ConfStorage::DumpLocal);
    const QString text = stored.isEmpty() ? QString()
                                          : QString::fromUtf8(QJsonDocument(stored).toJson());
    if (text == mText->toPlainText())
        return;
    const int position = mText->verticalScrollBar()->value();
    mText->setPlainText(text);
    mText->verticalScrollBar()->setValue(position);
}

void StoredDataPage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void StoredDataPage::retranslate()
{
    mTitle->setText(tr("Stored data"));
    mText->setPlaceholderText(tr("Nothing has been changed yet."));
}
