#pragma once

#include <MaltoConfiguration/malto_export.h>
#include <MaltoConfiguration/manage/ConfItem.h>
#include <MaltoConfiguration/store/ConfOperation.h>

#include <QFrame>
#include <QJsonValue>
#include <QList>
#include <QPointer>
#include <QString>

#include <functional>
#include <memory>

class QLabel;

namespace MtConf {

class HostCode;
class HostCodeScope;
class RowDependency;

/// The base class of all editors of the settings window. An editor edits one item.
///
/// It connects the editor with its item, creates the caption of the item and marks the caption
/// while the stored value differs from the default value. To write your own editor, derive from
/// this class, add a control to a layout, implement `loadConf` and store what the user enters with
/// `writeValue`.
///
/// An editor lives as long as the page that shows it. The item must outlive the editor, and its
/// field `editor` points to the editor.
///
/// @include own-editor/main.cpp
/// @see ConfItem::widgetCreator
/// @since 0.1
class MALTO_EXPORT ConfigItemWidget : public QFrame
{
public:
    /// Creates an editor of `item`, which must not be null, as a child of `parent`.
    ConfigItemWidget(ConfItem *item, QWidget *parent);
    ~ConfigItemWidget() override;

    /// Returns the caption. The first call creates it, a QLabel whose parent is the parent of this
    /// widget. An editor whose control has the text itself, such as a check box, returns that
    /// control.
    virtual QWidget *label();
    /// Translates the texts after a language change.
    virtual void retranslateUi();
    /// Sets the property "changed" of the caption to "1" if the value differs from its default
    /// value and to "0" otherwise, and applies the style sheet again.
    virtual void refreshLabelState();
    /// Restores the default value of the item. Does not update the control: the window rebuilds the
    /// page afterwards.
    virtual void restoreDefault();
    /// Copies the stored value into the control.
    virtual void loadConf() = 0;

    /// Stores what the user has entered and not confirmed yet, such as a text that is being typed.
    /// Called before the window saves, shows another page, restores defaults or closes. Does
    /// nothing in editors that store each change at once.
    virtual void commit();

    /// Shows the stored value after it has changed in another way than by this editor. Calls
    /// `loadConf`, and stores nothing meanwhile.
    void refresh();

    /// Returns whether the user has typed something into the focused field of this editor since
    /// the value was shown. A refresh would overwrite it.
    virtual bool isBeingEdited() const;

    /// Returns the label that says why a value is not accepted. The window shows it under the row.
    /// The first call creates it, hidden, as a child of the parent of this widget. Null if the
    /// editor accepts every value: its item has neither a range nor a validator, and the editor has
    /// not called `setHasMessage`.
    QLabel *messageLabel();

    /// Returns the range of the item in words, such as "From 1 to 99 px"; empty if it has none.
    QString rangeText() const;

    /// The state of the setting besides its value, such as a hotkey that another program uses.
    struct Status
    {
        QWidget *icon = nullptr;      ///< the control that shows the state as an icon; may be null
        QString text;                 ///< what is wrong, translated; empty if nothing is
        QString actionText;           ///< what the user can do about it, translated; may be empty
        std::function<void()> action; ///< does it
    };
    /// Returns the state. By default it has neither an icon nor a text.
    virtual Status status();
    /// Called when the state may have changed. The window sets it if its look shows the text of the
    /// state instead of the icon.
    std::function<void()> onStatusChanged;

    /// Disables the row, whatever the values are that it depends on, or enables it again. For
    /// values that an administrator has locked.
    void setRowLocked(bool isLocked);

    /// Sets the accessible texts of the controls for screen readers: the caption as the accessible
    /// name, and the help text of the item, or else `group`, the caption of the group, as the
    /// accessible description, unless the editor has set its own. The caption becomes the buddy of
    /// the first control. The window calls this when it builds the page and after a language
    /// change.
    void describeControls(const QString &group);

    /// Returns whether this editor is storing a value, and callbacks may be running. If a callback
    /// deletes the editor, its controls are deleted later, after their events are handled.
    bool isWriting() const { return mWrites > 0; }

    /// Whether editors that are created from now on can be used with the keyboard alone:
    /// multi-select combo boxes open on Alt+Down, F4 and Space, and Backspace and Delete clear a
    /// hotkey instead of being recorded. False by default.
    static bool sFullKeyboardAccess;

protected:
    /// Creates an `Editor` of `item`, for the factory of an editor class. Returns null, with the
    /// critical message "ConfigItemWidget without an item", if `item` is null.
    template<class Editor> static ConfigItemWidget *create(ConfItem *item, QWidget *parent)
    {
        if (item)
            return new Editor(item, parent);
        logNoItem();
        return nullptr;
    }

    /// Returns the stored value of the item.
    template<class T> T readValue() const
    {
        return ConfStorage::instance()->get<T>(mItem->getFullName());
    }

    /// Returns whether the validator of the item accepts `value`, and shows under the row why not.
    /// True without a validator and during `refresh`. Returns false if the validator has deleted
    /// this editor; the caller must then return without using it. Only editors that do something
    /// with a value before they store it have to call it.
    bool isAccepted(const QJsonValue &value);

    /// Stores `value` if it differs from the stored value. Returns false if it does not differ, if
    /// the validator of the item or the store does not accept it, during `refresh`, or if a
    /// callback has deleted this editor; the caller must then return without using it.
    template<class T> bool writeValue(const T &value)
    {
        if (readValue<T>() != value)
            return storeValue(value);
        showMessage(QString());
        return false;
    }

    /// Stores `value`, even if it equals the stored value. Returns false if the validator of the
    /// item or the store does not accept it, during `refresh`, or if a callback has deleted this
    /// editor; the caller must then return without using it.
    template<class T> bool storeValue(const T &value)
    {
        if (mItem->validator && !isAccepted(ConfValue::owned(value).toJsonValue()))
            return false;
        return storeAccepted(value);
    }

    /// The same as `storeValue` for a value about which the validator has been asked already.
    template<class T> bool storeAccepted(const T &value)
    {
        if (mIsRefreshing)
            return false;
        const Writing writing(this);
        const ConfOperation edit(ConfStorage::instance(), ConfChange::Cause::Edited);
        ConfStorage::instance()->set<T>(mItem->getFullName(), value);
        if (!writing.hasEditor())
            return false;
        return !hasConstraint() || isStored(ConfValue::owned(value).toJsonValue());
    }

    /// Returns the stored value in JSON, for editors of several types. Null if the key is unknown.
    QJsonValue readJson() const;
    /// The same as `writeValue` for a value in JSON.
    bool writeJson(const QJsonValue &value);

    /// Returns the label of the item in the current language.
    QString translatedText() const;
    /// Lets the editor show messages of its own; see `messageLabel`. To be called by constructors.
    void setHasMessage() { mHasMessage = true; }
    /// Shows `text` under the row, or hides the message if it is empty. Does nothing if the editor
    /// has no `messageLabel`.
    void showMessage(const QString &text);

    ConfItem *mItem;          ///< the edited item
    QPointer<QWidget> mLabel; ///< the caption; null before the first `label()`

    /// Exists while the editor stores a value, or asks the host about it. The control that the
    /// value comes from is handling an event then, so its deletion and that of the editor's page
    /// wait.
    class MALTO_EXPORT Writing
    {
    public:
        /// Begins to store a value of `editor`.
        explicit Writing(ConfigItemWidget *editor);
        ~Writing();
        Q_DISABLE_COPY(Writing)

        /// Returns whether the editor still exists.
        bool hasEditor() const { return mEditor; }

    private:
        const QPointer<ConfigItemWidget> mEditor;
        const std::unique_ptr<HostCodeScope> mScope;
    };

private:
    friend class RowDependency;

    static void logNoItem();
    bool hasConstraint() const;
    bool isStored(const QJsonValue &value);
    void updateToolTips();
    void setRowEnabled(bool isEnabled);
    void applyEnabled();
    void leaveControls();

    const std::shared_ptr<HostCode> mHostCode;
    QJsonValue mInitialValue;
    QPointer<QLabel> mMessage;
    bool mHasMessage = false;
    bool mIsRowEnabled = true;
    bool mIsRowLocked = false;
    bool mIsRefreshing = false;
    int mWrites = 0;
};

} // namespace MtConf
