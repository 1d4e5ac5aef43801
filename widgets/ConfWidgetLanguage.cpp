#include <MaltoConfiguration/widgets/ConfWidgetLanguage.h>

#include "LangCodeTable_p.h"

#include <OrvUtils/getPreferredLanguages.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QHBoxLayout>
#include <QListView>
#include <QSignalBlocker>
#include <QTranslator>

namespace MtConf {

namespace {

const QLatin1String sFollowSystem("auto");
const QLatin1String sEnglish("en-us");

/// Whether translators can be installed for `code`.
bool isLanguage(const QStringList &supported, const QString &code)
{
    return code != sFollowSystem && supported.contains(code);
}

/// False, with `translator` left out of the application, when `file` cannot be loaded.
bool installFile(QTranslator *translator, const QString &file)
{
    // Qt asks a translator once for every time that it was installed.
    QCoreApplication::removeTranslator(translator);
    // This file and no other: by default Qt tries shorter and shorter names as well.
    const QString none = QLatin1String("");
    if (!translator->load(file, none, none, none))
        return false;
    QCoreApplication::installTranslator(translator);
    return true;
}

} // namespace

QStringList ConfWidgetLanguage::mSupportLangCodes;
QString ConfWidgetLanguage::sLanguagePath = QStringLiteral("/../Resources/language/");
QString ConfWidgetLanguage::sLanguageQtPath = QStringLiteral("/../Resources/language_qt/");

ConfWidgetLanguage::ConfWidgetLanguage(ConfItem *item, QWidget *parent)
    : ConfigItemWidget(item, parent), mComboBox(new QComboBox(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    // Style sheets reach the rows of this view only, not those of the native one.
    mComboBox->setView(new QListView(mComboBox));
    mComboBox->addItems(displayNames());
    layout->addWidget(mComboBox);
    connect(mComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ConfWidgetLanguage::onCurrentIndexChanged);
    loadConf();
}

ConfigItemWidget *ConfWidgetLanguage::CreatConfWidget(ConfItem *item, QWidget *parent)
{
    return create<ConfWidgetLanguage>(item, parent);
}

QStringList ConfWidgetLanguage::loadSupportLanguageCode()
{
    if (!mSupportLangCodes.isEmpty())
        return mSupportLangCodes;
    // English is built in and needs no file. A host that ships one all the same gets a second row:
    // every file has its row, whatever stands in the list already.
    mSupportLangCodes << sFollowSystem << sEnglish;
    const QDir folder(QCoreApplication::applicationDirPath() + sLanguagePath);
    const QStringList files = folder.entryList({QStringLiteral("*.qm")},
                                               QDir::Files | QDir::Readable, QDir::Name);
    for (const QString &file : files)
        mSupportLangCodes.append(file.section(QLatin1Char('.'), 0, 0).toLower());
    return mSupportLangCodes;
}

QString ConfWidgetLanguage::getVaildLanguageCode(QString code)
{
    const QStringList supported = loadSupportLanguageCode();
    if (isLanguage(supported, code))
        return code;
    const QStringList preferred = getPreferredLanguages();
    for (QString language : preferred) {
        // macOS names Simplified Chinese by its script, translation files by its country.
        if (language == QLatin1String("zh-Hans-CN"))
            language = QStringLiteral("zh-cn");
        language = language.toLower().replace(QLatin1Char('_'), QLatin1Char('-'));
        if (isLanguage(supported, language))
            return language;
    }
    return sEnglish;
}

void ConfWidgetLanguage::installTranslator(QString code)
{
    // What was asked for, not what came of it: asking again for "auto" stays free, even when the
    // system's language has changed meanwhile.
    static QString lastLangCode;
    if (code == lastLangCode)
        return;
    lastLangCode = code;

    code = getVaildLanguageCode(code);
    qDebug() << "installTranslator: " << code;
    // A list of the host's own may lack English.
    if (!mSupportLangCodes.contains(code))
        code = mSupportLangCodes.first();

    static QTranslator translator;
    static QTranslator qt_translator;
    if (code == sEnglish) {
        QCoreApplication::removeTranslator(&translator);
        QCoreApplication::removeTranslator(&qt_translator);
        return;
    }
    const QString folder = QCoreApplication::applicationDirPath();
    if (!installFile(&translator, folder + sLanguagePath + code + QLatin1String(".qm")))
        qWarning() << "Unable to load QTranslator";
    const QString qtFile = folder + sLanguageQtPath + QLatin1String("qt_") + code
                           + QLatin1String(".qm");
    if (!installFile(&qt_translator, qtFile))
        qWarning() << "Unable to load Qt office QTranslator : " << qtFile;
}

void ConfWidgetLanguage::retranslateUi()
{
    ConfigItemWidget::retranslateUi();
    const QStringList names = displayNames();
    for (int row = 0; row < names.size(); ++row)
        mComboBox->setItemText(row, names.at(row));
}

void ConfWidgetLanguage::loadConf()
{
    // Showing a code whose file has gone must not replace it: the file may come back.
    const QSignalBlocker blocker(mComboBox);
    const auto index = static_cast<int>(mSupportLangCodes.indexOf(readValue<QString>()));
    mComboBox->setCurrentIndex(qMax(0, index));
    refreshLabelState();
}

void ConfWidgetLanguage::onCurrentIndexChanged(int index)
{
    if (index < 0 || index >= mSupportLangCodes.size())
        return;
    if (mComboBox->currentIndex() == index) {
        if (writeValue(mSupportLangCodes.at(index)))
            refreshLabelState();
        return;
    }
    const QPointer<ConfWidgetLanguage> self(this);
    mComboBox->setCurrentIndex(index); // comes back here and writes
    if (self)
        refreshLabelState();
}

QStringList ConfWidgetLanguage::displayNames()
{
    QStringList names;
    const QStringList codes = loadSupportLanguageCode();
    for (const QString &code : codes) {
        // A row counts as the code of the same number in the list of codes, so a file of a language
        // without a name moves the rows after it by one; hosts ship files of the table's languages.
        const QString name = code == sFollowSystem ? tr("Follow the system")
                                                   : LangCodeTable::displayName(code);
        if (!name.isEmpty())
            names.append(name);
    }
    return names;
}

} // namespace MtConf
