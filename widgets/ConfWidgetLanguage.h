#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <QStringList>

class QComboBox;

namespace MtConf {

/// Edits the language of the user interface with a combo box that lists "Follow the system" and the
/// languages for which there is a translation file. The value is a language code: "auto", "en-us",
/// "fr-fr" and so on.
///
/// The static functions list the supported languages and install the translators of a language.
/// Call them on the GUI thread only.
///
/// @see MtConfManage::addConfLanguage
/// @since 0.1
class MALTO_EXPORT ConfWidgetLanguage : public ConfigItemWidget
{
    Q_OBJECT
public:
    /// Creates an editor of `item`, which must not be null, as a child of `parent` and shows the
    /// stored value.
    ConfWidgetLanguage(ConfItem *item, QWidget *parent);
    /// Creates the editor; the `WidgetCreator` of this class. Returns null, with the critical
    /// message "ConfigItemWidget without an item", if `item` is null.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    /// Returns the supported language codes: "auto", "en-us", then one for each translation file in
    /// alphabetical order. The code is the file name up to the first ".", in lower case. The folder
    /// is read once per process.
    static QStringList loadSupportLanguageCode();
    /// Resolves `code` to a supported language code, never "auto". Returns `code` if it is
    /// supported; otherwise the first of the system's preferred languages that is supported;
    /// otherwise "en-us".
    static QString getVaildLanguageCode(QString code);
    /// Resolves `code` as `getVaildLanguageCode` does and installs the application's and Qt's
    /// translators of that language. For "en-us" removes both translators. Does nothing if `code`
    /// is the same as in the previous call.
    ///
    /// Logs "installTranslator: " and the resolved code at debug level. Logs the warning "Unable to
    /// load QTranslator", or "Unable to load Qt office QTranslator : " and the path, if a file
    /// cannot be loaded. The file is tried again only after another code was requested.
    static void installTranslator(QString code);

    /// Translates the caption and the row "Follow the system".
    void retranslateUi() override;
    /// Selects the row of the stored code, or "Follow the system" if the code is not supported.
    void loadConf() override;

    /// The result of `loadSupportLanguageCode`; empty before its first call.
    static QStringList mSupportLangCodes;
    /// The folder of the application's translations ("fr-fr.qm"), relative to the folder of the
    /// application's executable. A host that has them elsewhere sets it before the first use of
    /// this class.
    static QString sLanguagePath;
    /// The folder of Qt's own translations ("qt_fr-fr.qm"), relative to the folder of the
    /// application's executable.
    static QString sLanguageQtPath;

public Q_SLOTS:
    /// Selects row `index` and stores its code if it differs from the stored one. Does nothing if
    /// there is no such row.
    void onCurrentIndexChanged(int index);

private:
    static QStringList displayNames();

    QComboBox *mComboBox = nullptr;
};

} // namespace MtConf
