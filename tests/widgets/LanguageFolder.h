#pragma once

#include <MaltoConfiguration/widgets/ConfWidgetLanguage.h>

#include <QtTest>

/// The folder with the translation files of one test. The language editor searches it during the
/// lifetime of this object.
class LanguageFolder
{
public:
    LanguageFolder()
    {
        using MtConf::ConfWidgetLanguage;
        const QString base = '/'
                             + QDir(QCoreApplication::applicationDirPath())
                                   .relativeFilePath(QDir(mFolder.path()).canonicalPath());
        ConfWidgetLanguage::sLanguagePath = base + "/language/";
        ConfWidgetLanguage::sLanguageQtPath = base + "/language_qt/";
        ConfWidgetLanguage::mSupportLangCodes.clear();
    }
    /// Removes the translators too: they belong to the process.
    ~LanguageFolder()
    {
        MtConf::ConfWidgetLanguage::mSupportLangCodes = QStringList{"auto", "en-us"};
        MtConf::ConfWidgetLanguage::installTranslator("en-us");
    }
    Q_DISABLE_COPY(LanguageFolder)

    /// Adds empty files: only their names matter until they are loaded. A name may contain a
    /// folder.
    void addFiles(const QStringList &names) const
    {
        for (const QString &name : names) {
            QFile file(mFolder.filePath("language/" + name));
            QVERIFY(QDir().mkpath(QFileInfo(file).path()) && file.open(QIODevice::WriteOnly));
        }
    }
    /// Adds a file with translations that the build has compiled.
    void addCatalogue(const QString &name) const
    {
        copyCatalogue(name, (name.startsWith("qt_") ? "language_qt/" : "language/") + name);
    }
    /// Adds a file with translations under another name; `path` is relative to the parent of the
    /// language folders.
    void copyCatalogue(const QString &name, const QString &path) const
    {
        const QString target = mFolder.filePath(path);
        QVERIFY(QDir().mkpath(QFileInfo(target).path()));
        QFile::remove(target);
        QVERIFY(QFile::copy(QDir(MALTO_TEST_CATALOGUES).filePath(name), target));
    }
    /// Returns the path of a file in the folder for the application's translations.
    QString filePath(const QString &name) const { return mFolder.filePath("language/" + name); }
    /// Adds French for the application and Qt, and German for the application only.
    void addFrenchAndGerman() const
    {
        addCatalogue("fr-fr.qm");
        addCatalogue("qt_fr-fr.qm");
        addCatalogue("de-de.qm");
    }

private:
    QTemporaryDir mFolder;
};
