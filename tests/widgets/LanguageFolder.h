#pragma once

#include <MaltoConfiguration/widgets/ConfWidgetLanguage.h>

#include <QtTest>

/// The translation files of one test, where the language editor looks for them while this lives.
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
    /// Removes the translators too: they are the process's.
    ~LanguageFolder()
    {
        MtConf::ConfWidgetLanguage::mSupportLangCodes = QStringList{"auto", "en-us"};
        MtConf::ConfWidgetLanguage::installTranslator("en-us");
    }
    Q_DISABLE_COPY(LanguageFolder)

    /// Empty files: only their names count until they are loaded. A name may lead into a folder.
    void addFiles(const QStringList &names) const
    {
        for (const QString &name : names) {
            QFile file(mFolder.filePath("language/" + name));
            QVERIFY(QDir().mkpath(QFileInfo(file).path()) && file.open(QIODevice::WriteOnly));
        }
    }
    /// A file with translations, made by the build.
    void addCatalogue(const QString &name) const
    {
        copyCatalogue(name, (name.startsWith("qt_") ? "language_qt/" : "language/") + name);
    }
    /// A file with translations under another name; `path` leads from the parent of the folders.
    void copyCatalogue(const QString &name, const QString &path) const
    {
        const QString target = mFolder.filePath(path);
        QVERIFY(QDir().mkpath(QFileInfo(target).path()));
        QFile::remove(target);
        QVERIFY(QFile::copy(QDir(MALTO_TEST_CATALOGUES).filePath(name), target));
    }
    /// The path of a file in the application's folder.
    QString filePath(const QString &name) const { return mFolder.filePath("language/" + name); }
    /// French for the application and Qt, German for the application alone.
    void addFrenchAndGerman() const
    {
        addCatalogue("fr-fr.qm");
        addCatalogue("qt_fr-fr.qm");
        addCatalogue("de-de.qm");
    }

private:
    QTemporaryDir mFolder;
};
