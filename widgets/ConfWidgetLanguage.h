#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <QStringList>

class QComboBox;

namespace MtConf {

/// Chooses the language of the interface among those whose translation files are there, and
/// "Follow the system". The item holds the code of the language: "auto", "en-us", "fr-fr", ...
///
/// Its static functions find the supported languages and install the translators of one. They
/// belong to the GUI thread.
class MALTO_EXPORT ConfWidgetLanguage : public ConfigItemWidget
{
    Q_OBJECT
public:
    /// An editor of `item` inside `parent`; `loadConf` shows the stored value.
    ConfWidgetLanguage(ConfItem *item, QWidget *parent);
    /// Makes the editor: the `WidgetCreator` of this class.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    /// The codes that can be stored: "auto", "en-us", then one for each translation file, by name:
    /// the file's name up to the first ".", in lower case. Files are looked up once in a process.
    static QStringList loadSupportLanguageCode();
    /// The supported code, never "auto", that `code` stands for: itself, or the first of the
    /// system's preferred languages that is supported, or "en-us".
    static QString getVaildLanguageCode(QString code);
    /// Installs the application's and Qt's translators of the language that `code` stands for; for
    /// "en-us" removes them. Nothing happens when `code` is that of the call before.
    ///
    /// Logs the language at debug level. A file that cannot be loaded is logged as a warning,
    /// "Unable to load QTranslator" or "Unable to load Qt office QTranslator : " and the path, and
    /// tried again only after another language.
    static void installTranslator(QString code);

    void retranslateUi() override;
    void loadConf() override;

    /// What `loadSupportLanguageCode` found; empty before its first call.
    static QStringList mSupportLangCodes;
    /// The folder of the application's translations ("fr-fr.qm"), relative to the folder of its
    /// executable. A host that keeps them elsewhere sets it before the languages are first needed.
    static QString sLanguagePath;
    /// The folder of Qt's own translations ("qt_fr-fr.qm"), relative to the folder of the
    /// application's executable.
    static QString sLanguageQtPath;

public Q_SLOTS:
    /// Stores the code of row `index`, if it is another one.
    void onCurrentIndexChanged(int index);

private:
    static QStringList displayNames();

    QComboBox *mComboBox = nullptr;
};

} // namespace MtConf
