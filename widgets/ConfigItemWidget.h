#pragma once

#include <MaltoConfiguration/malto_export.h>
#include <MaltoConfiguration/manage/ConfItem.h>

#include <QFrame>
#include <QJsonValue>
#include <QList>
#include <QPointer>

namespace MtConf {

/// The editor of one item: the base of every editor that the settings window shows.
///
/// It ties the editor to its item, owns the item's caption and marks the caption while the stored
/// value differs from the default. An editor of one's own derives from it, puts its control into a
/// layout, implements `loadConf`, and writes what a person enters with `writeValue`.
///
/// An editor lives as long as the page that shows it; the item must outlive it. Meanwhile the
/// item's `editor` points to it.
///
/// @include own-editor/main.cpp
class MALTO_EXPORT ConfigItemWidget : public QFrame
{
public:
    /// An editor of `item`, which must not be null, inside `parent`.
    ConfigItemWidget(ConfItem *item, QWidget *parent);
    ~ConfigItemWidget() override;

    /// The caption, made at the first call as a label beside this widget. An editor whose control
    /// bears the text itself, such as a check box, returns that control.
    virtual QWidget *label();
    /// Sets the texts again after a change of language.
    virtual void retranslateUi();
    /// Sets the caption's property "changed" to "1" while the value differs from its default and
    /// to "0" otherwise, and has the style sheet look at it again.
    virtual void refreshLabelState();
    /// Restores the default of the item. The control is not updated: the page is rebuilt after it.
    virtual void restoreDefault();
    /// Copies the stored value into the control.
    virtual void loadConf() = 0;

    /// Tells screen readers what the controls are for: each is named as the caption and described
    /// by `group`, the caption of its group, unless the editor has named or described it itself.
    /// The caption becomes the buddy of the first control. Called when the page is built and again
    /// when the language changes.
    void describeControls(const QString &group);

    /// Whether a value that this editor writes is on its way through the store. Callbacks run
    /// meanwhile; whoever wants to delete the editor then does it later.
    bool isWriting() const { return mWriting; }

    /// Whether editors that are made from now on can be used by the keyboard alone: boxes of
    /// several choices open on Alt+Down, F4 and Space, and Backspace and Delete clear a hotkey
    /// instead of being recorded. False by default.
    static bool sFullKeyboardAccess;

protected:
    /// What a factory of editors returns: a new `Editor` of `item`. Null, and the critical message
    /// "ConfigItemWidget without an item", when there is none.
    template<class Editor> static ConfigItemWidget *create(ConfItem *item, QWidget *parent)
    {
        if (item)
            return new Editor(item, parent);
        logNoItem();
        return nullptr;
    }

    /// The stored value of the item.
    template<class T> T readValue() const
    {
        return ConfStorage::instance()->get<T>(mItem->getFullName());
    }

    /// Stores `value` if it differs from the stored one. False when there was nothing to write, or
    /// when a callback has deleted this editor: the caller returns at once then.
    template<class T> bool writeValue(const T &value)
    {
        return readValue<T>() != value && storeValue(value);
    }

    /// Stores `value`, also when it is the stored one. False when a callback has deleted this
    /// editor: the caller returns at once then.
    template<class T> bool storeValue(const T &value)
    {
        const Writing writing(this);
        ConfStorage::instance()->set<T>(mItem->getFullName(), value);
        return writing.hasEditor();
    }

    /// The item's label in the current language.
    QString translatedText() const;

    ConfItem *mItem;          ///< the edited item
    QPointer<QWidget> mLabel; ///< the caption; null until first asked for

private:
    /// One value on its way through the store. The control that it comes from still handles its
    /// event then. When a callback deletes the editor, the control lives on here until the store
    /// returns, also when that takes a dialog of the host.
    class MALTO_EXPORT Writing
    {
    public:
        explicit Writing(ConfigItemWidget *editor);
        ~Writing();
        Q_DISABLE_COPY(Writing)

        bool hasEditor() const { return mEditor; }
        void takeControls(const QList<QWidget *> &controls);

    private:
        const QPointer<ConfigItemWidget> mEditor;
        Writing *const mOuter;
        QList<QPointer<QWidget>> mControls;
    };

    static void logNoItem();

    QJsonValue mInitialValue;
    Writing *mWriting = nullptr;
};

} // namespace MtConf
