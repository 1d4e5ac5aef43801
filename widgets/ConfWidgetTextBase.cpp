#include <MaltoConfiguration/widgets/ConfWidgetTextBase.h>

#include "PendingEdit_p.h"

namespace MtConf {

ConfWidgetTextBase::ConfWidgetTextBase(ConfItem *item, QWidget *parent)
    : ConfigItemWidget(item, parent)
{
}

ConfWidgetTextBase::~ConfWidgetTextBase()
{
    // The field is destroyed after this object, and loses the focus then.
    if (mPending)
        mPending->disconnect(this);
}

void ConfWidgetTextBase::watchField(QWidget *field)
{
    mPending = new PendingEdit(field);
    connect(mPending, &PendingEdit::paused, this, [this] { storeTyped(Moment::Pause); });
    connect(mPending, &PendingEdit::left, this, &ConfWidgetTextBase::commit);
}

void ConfWidgetTextBase::onTyped()
{
    mPending->begin();
}

void ConfWidgetTextBase::loadConf()
{
    if (!mPending->isTyping()) {
        mPending->take();
        const QString stored = readValue<QString>();
        const QString text = toField(stored);
        if (fieldText() != text)
            setFieldText(text);
        describeText(stored);
    }
    refreshLabelState();
}

void ConfWidgetTextBase::commit()
{
    storeTyped(Moment::End);
}

void ConfWidgetTextBase::storeTyped(Moment moment)
{
    // Taken before callbacks run, because one of them may commit.
    if (!mPending->take())
        return;
    const QPointer<ConfWidgetTextBase> self(this);
    const QString text = toStored(fieldText());
    const bool isWritten = writeValue(text);
    if (!self)
        return;
    if (!isWritten && readValue<QString>() != text) {
        mPending->keep();
        return;
    }
    refreshLabelState();
    // A callback may have stored another text. It does not appear while the user is typing.
    if (moment == Moment::End)
        loadConf();
    else
        describeText(readValue<QString>());
}

QString ConfWidgetTextBase::toField(const QString &stored) const
{
    return stored;
}

QString ConfWidgetTextBase::toStored(const QString &typed) const
{
    return typed;
}

void ConfWidgetTextBase::describeText(const QString &text)
{
    Q_UNUSED(text)
    showMessage(QString());
}

} // namespace MtConf
