#include <MaltoConfiguration/widgets/ConfWidgetPassword.h>

#include <QApplication>
#include <QFocusEvent>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>

namespace MtConf {

ConfWidgetPassword::ConfWidgetPassword(ConfItem *item, QWidget *parent)
    : ConfWidgetText(item, parent), mShowButton(new QPushButton(this))
{
    mShowButton->setCheckable(true);
    layout()->addWidget(mShowButton);
    connect(mShowButton, &QAbstractButton::toggled, this, &ConfWidgetPassword::setRevealed);
    field()->installEventFilter(this);
    mShowButton->installEventFilter(this);
    setRevealed(false);
    retranslateUi();
}

ConfigItemWidget *ConfWidgetPassword::CreatConfWidget(ConfItem *item, QWidget *parent)
{
    return create<ConfWidgetPassword>(item, parent);
}

void ConfWidgetPassword::retranslateUi()
{
    ConfWidgetText::retranslateUi();
    mShowButton->setText(tr("Show"));
    mShowButton->setAccessibleName(mShowButton->text());
}

bool ConfWidgetPassword::eventFilter(QObject *watched, QEvent *event)
{
    // The context menu of the field takes the focus only for a while.
    if (event->type() == QEvent::FocusOut
        && static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason
        && !isAncestorOf(QApplication::focusWidget()))
        mShowButton->setChecked(false);
    return ConfWidgetText::eventFilter(watched, event);
}

void ConfWidgetPassword::setRevealed(bool isRevealed)
{
    // Without its history the field cannot bring back an earlier password.
    setFieldText(fieldText());
    field()->setEchoMode(isRevealed ? QLineEdit::Normal : QLineEdit::Password);
    // Qt removes the hints while the text is visible, and input methods would learn it.
    field()->setInputMethodHints(field()->inputMethodHints() | Qt::ImhSensitiveData
                                 | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
    // The text is hidden again when the focus leaves, so the focus has to be here. On some systems
    // a click does not give it to a button.
    if (isRevealed && !isAncestorOf(QApplication::focusWidget()))
        field()->setFocus();
}

} // namespace MtConf
