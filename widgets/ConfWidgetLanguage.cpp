#include <MaltoConfiguration/widgets/ConfWidgetLanguage.h>

#include "LangCodeTable_p.h"
#include "MaltoConfiguration/store/Limits_p.h"
#include "MaltoConfiguration/store/PosixFile_p.h"
#include "RoundedPopup_p.h"

#include <OrvUtils/getPreferredLanguages.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QTranslator>

namespace MtConf {

namespace {

constexpr QLatin1String sFollowSystem("auto", 4);
constexpr QLatin1String sEnglish("en-us", 5);

/// Returns whether `code` is a supported language code other than "auto".
bool isLanguage(const QStringList &supported, const QString &code)
{
    return code != sFollowSystem && supported.contains(code);
}

/// A translator of the application, with the content of its file.
class FileTranslator
{
public:
    /// Loads `file` and installs the translator. Returns false, with the translator removed from
    /// the application, if the file cannot be loaded.
    bool install(const QString &file)
    {
        // A translator that is installed twice would be asked twice.
        remove();
        const QByteArray content = PosixFile::read(file, Limits::sMaxSmallFileSize).bytes;
        const bool isLoaded = mTranslator.load(reinterpret_cast<const uchar *>(content.constData()),
                                               static_cast<int>(content.size()));
        mContent = content;
        if (isLoaded)
            QCoreApplication::installTranslator(&mTranslator);
        return isLoaded;
    }

    void remove() { QCoreApplication::removeTranslator(&mTranslator); }

private:
    QByteArray mContent; // the translator reads it as long as it exists
    QTranslator mTranslator;
};

} // namespace

QStringList ConfWidgetLanguage::mSupportLangCodes;
QString ConfWidgetLanguage::sLanguagePath = QStringLiteral("/../Resources/language/");
QString ConfWidgetLanguage::sLanguageQtPath = QStringLiteral("/../Resources/language_qt/");

ConfWidgetLanguage::ConfWidgetLanguage(ConfItem *item, QWidget *parent)
    : ConfigItemWidget(item, parent), mComboBox(new QComboBox(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    RoundedPopup::addList(mComboBox);
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
    // English is built in and needs no file. Each file adds a row, so a host that installs an
    // English file gets a second row for it.
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
        // macOS identifies Simplified Chinese by its script, translation files by the country.
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
    // The requested code, not the resolved one: a repeated request for "auto" returns at once, even
    // if the system language has changed.
    static QString lastLangCode;
    if (code == lastLangCode)
        return;
    lastLangCode = code;

    code = getVaildLanguageCode(code);
    qDebug() << "installTranslator: " << code;
    // A host may have set a list without English.
    if (!mSupportLangCodes.contains(code))
        code = mSupportLangCodes.first();

    static FileTranslator translator;
    static FileTranslator qt_translator;
    if (code == sEnglish) {
        translator.remove();
        qt_translator.remove();
        return;
    }
    const QString folder = QCoreApplication::applicationDirPath();
    if (!translator.install(folder + sLanguagePath + code + QLatin1String(".qm")))
        qWarning() << "Unable to load QTranslator";
    const QString qtFile = folder + sLanguageQtPath + QLatin1String("qt_") + code
                           + QLatin1String(".qm");
    if (!qt_translator.install(qtFile))
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
    // A code whose file is missing is not overwritten: the file may be installed again.
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
    mComboBox->setCurrentIndex(index); // calls this function again, which stores the code
    if (self)
        refreshLabelState();
}

QStringList ConfWidgetLanguage::displayNames()
{
    QStringList names;
    const QStringList codes = loadSupportLanguageCode();
    for (const QString &code : codes) {
        // A row selects the code with the same index, so a file for a language without a name
        // shifts the rows after it. Hosts install files for the languages of the table only.
        const QString name = code == sFollowSystem ? tr("Follow the system")
                                                   : LangCodeTable::displayName(code);
        if (!name.isEmpty())
            names.append(name);
    }
    return names;
}

} // namespace MtConf
