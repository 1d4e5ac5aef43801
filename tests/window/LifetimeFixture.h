#pragma once

#include "support/WindowFixture.h"

#include <OrvUtils/QThemeCtrl.h>

#include <QColor>
#include <QEvent>
#include <QFont>
#include <QHBoxLayout>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeySequence>
#include <QxtGlobalShortcut>

#include <functional>

/// An editor of the host that calls host code when it is retranslated and when it receives a
/// language change event.
class HostEditor : public MtConf::ConfigItemWidget
{
public:
    using Code = std::function<void()>;

    HostEditor(MtConf::ConfItem *item, QWidget *parent, Code onRetranslate, Code onLanguage)
        : ConfigItemWidget(item, parent), mBox(new QCheckBox(this)),
          mOnRetranslate(std::move(onRetranslate)), mOnLanguage(std::move(onLanguage))
    {
        auto *layout = new QHBoxLayout(this);
        layout->addWidget(mBox);
    }
    void retranslateUi() override
    {
        if (mOnRetranslate)
            mOnRetranslate();
        // Under the sanitizers this fails if the host code has deleted the editor.
        mBox->setText(translatedText());
    }
    void loadConf() override { mBox->setChecked(readValue<bool>()); }

protected:
    void changeEvent(QEvent *event) override
    {
        if (event->type() == QEvent::LanguageChange && mOnLanguage)
            mOnLanguage();
        ConfigItemWidget::changeEvent(event);
        mBox->update();
    }

private:
    QCheckBox *mBox;
    const Code mOnRetranslate;
    const Code mOnLanguage;
};

/// A host with every kind of setting on page "Edit", a check box on page "Other", and the custom
/// page "Custom". Tests set the functions `onCreate` etc. to run host code at these places.
class LifetimeFixture
{
public:
    LifetimeFixture()
    {
        clearStore();
        store()->mLocalSaveFile = WindowFixture::localFile();
        QFile::remove(WindowFixture::geometryFile());
        // Only keys of a dynamic class can be removed.
        mRemovable.prefix = "Edit.";
        store()->mDynamicConfClasses.append(&mRemovable);
        declare();
    }
    ~LifetimeFixture()
    {
        manager.reset();
        QThemeCtrl::instance()->setTheme(QThemeCtrl::Theme::System);
        clearStore();
    }
    Q_DISABLE_COPY(LifetimeFixture)

    static ConfStorage *store() { return ConfStorage::instance(); }
    static MtConf::ConfigurationWindow *window() { return MtConf::ConfigurationWindow::instance(); }

    /// Creates a new manager with all settings, after the old one is destroyed.
    void declare()
    {
        using MtConf::ConfItem;
        manager.reset();
        manager = std::make_unique<MtConf::MtConfManage>();
        other = manager->addConfBool("Other", &otherValue, "Other", "Flag");
        manager->addConfBool("Flag", &flag, "Edit", "Flag");
        manager->addConfInt32("Number", &number, "Edit", "Number");
        manager->addConfStrWithCombobox("Text", {"one", "two", "three"}, &text, "Edit", "Text");
        manager->addConfInt32WithCombobox("Bits", {"1", "2", "4"}, {1, 2, 4}, &bits, "Edit", "Bits")
            ->properties["MultiSelect"] = true;
        manager->addConfQColor("Colour", &colour, "Edit", "Colour");
        manager->addConfQFont("Font", &font, "Edit", "Font");
        manager->addConfQKeySequence("Key", &key, "Edit", "Key")
            ->properties["Shortcut"] = QVariant::fromValue(&shortcut);
        manager->addConfMouseAction("Mouse", &mouse, 1, "Edit", "Mouse");
        manager->addConfLanguage("Language", &language, "Edit", "Language");
        manager
            ->addConfBool("Host", &host, "Edit", "Host", "",
                          [this](ConfItem *item, QWidget *parent) {
                              if (onCreate)
                                  onCreate();
                              return new HostEditor(item, parent, onRetranslate, onLanguage);
                          })
            ->flags = MtConf::ItemIsFiltered;
        manager->itemFilter = [this](ConfItem &) {
            if (onFilter)
                onFilter();
            return true;
        };
        manager->setMajorWidget("Custom", [this](QWidget *parent) {
            if (onPage)
                onPage();
            return new QLabel("custom", parent);
        });
        language = "auto";
    }
    /// Writes a file that changes every setting of page "Edit" and returns its path.
    static QString configuration()
    {
        const QJsonObject members{{"Edit.Flag", false},   {"Edit.Number", 11},
                                  {"Edit.Text", "three"}, {"Edit.Bits", 6},
                                  {"Edit.Host", false},   {"Edit.Mouse", 4}};
        QFile file("lifetimes.json");
        if (file.open(QIODevice::WriteOnly))
            file.write(QJsonDocument(members).toJson());
        return file.fileName();
    }
    /// Returns the first control of this class in the editor of setting `name` on page "Edit".
    template<class Control> Control *control(const char *name) const
    {
        return manager->getItemByName("Edit", name, "")->editor->findChild<Control *>();
    }
    static void pressClass(const QString &name)
    {
        QListView *list = WindowFixture::classList();
        const QModelIndexList found = list->model()->match(list->model()->index(0, 0),
                                                           Qt::DisplayRole, name);
        QTest::mousePress(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(found.value(0)).center());
    }

    QxtGlobalShortcut shortcut;
    bool otherValue = false;
    bool flag = true;
    int number = 5;
    QString text = "one";
    int bits = 1;
    QColor colour = Qt::red;
    QFont font;
    QKeySequence key{Qt::CTRL | Qt::SHIFT | Qt::Key_F9};
    int mouse = 2;
    QString language = "auto";
    bool host = true;

    std::function<void()> onCreate;
    std::function<void()> onFilter;
    std::function<void()> onLanguage;
    std::function<void()> onPage;
    std::function<void()> onRetranslate;

    std::unique_ptr<MtConf::MtConfManage> manager;
    MtConf::ConfItem *other = nullptr;

private:
    ConfStorage::DynamicConfClass mRemovable;
};
