#include "SwitchCaption_p.h"

#include <OrvUtils/QThemeCtrl.h>

#include <QCheckBox>
#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace MtConf {

namespace {

constexpr double sDisabledOpacity = 0.45;
constexpr double sKnobMargin = 1. / 11; // of the height of the switch
constexpr char sChanged[] = "changed";

} // namespace

QString withoutMark(QString text)
{
    for (int i = 0; i + 1 < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('&') && text.at(i + 1) != QLatin1Char(' '))
            text.remove(i, 1);
    }
    return text;
}

SwitchCaption::SwitchCaption(QCheckBox *box, QSize size, QWidget *parent)
    : WrappedLabel(QString(), parent), mBox(box)
{
    setTextFormat(Qt::PlainText);
    setProperty("ConfigItemWidgetLabel", QStringLiteral("1"));
    box->setProperty("Switch", QStringLiteral("1"));
    box->setFixedSize(size);
    box->installEventFilter(this);
    followText();
    followState();
}

/// To be called while the check box exists.
QCheckBox *SwitchCaption::box() const
{
    return static_cast<QCheckBox *>(mBox.data());
}

void SwitchCaption::followText()
{
    if (mBox)
        setText(withoutMark(box()->text()));
}

void SwitchCaption::followState()
{
    setEnabled(box()->isEnabled());
    setToolTip(box()->toolTip());
    if (property(sChanged) == box()->property(sChanged))
        return;
    setProperty(sChanged, box()->property(sChanged));
    if (!testAttribute(Qt::WA_WState_Polished))
        return;
    style()->unpolish(this);
    style()->polish(this);
}

bool SwitchCaption::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != mBox)
        return WrappedLabel::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::Paint: drawSwitch(); return true;
    case QEvent::EnabledChange:
    case QEvent::ToolTipChange:
    case QEvent::DynamicPropertyChange: followState(); break;
    default: break;
    }
    return WrappedLabel::eventFilter(watched, event);
}

void SwitchCaption::mousePressEvent(QMouseEvent *event)
{
    // A label ignores the press, and would not get the release then.
    event->setAccepted(event->button() == Qt::LeftButton);
}

void SwitchCaption::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()) && mBox) {
        box()->setFocus(Qt::MouseFocusReason);
        box()->click(); // a callback may delete this caption
    }
}

void SwitchCaption::drawSwitch() const
{
    const QThemeCtrl *const themes = QThemeCtrl::instance();
    const bool isOn = box()->checkState() == Qt::Checked;
    QColor track = themes->color(isOn ? QStringLiteral("ModernAccent")
                                      : QStringLiteral("ModernFieldLine"));
    if (box()->isEnabled() && box()->underMouse())
        track = themes->isDark() ? track.lighter(112) : track.darker(112);

    QPainter painter(box());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setOpacity(box()->isEnabled() ? 1 : sDisabledOpacity);
    const QRectF whole(box()->rect());
    painter.setBrush(track);
    painter.drawRoundedRect(whole, whole.height() / 2, whole.height() / 2);

    const double margin = whole.height() * sKnobMargin;
    const double side = whole.height() - 2 * margin;
    const double way = whole.width() - 2 * margin - side;
    double moved = isOn ? way : 0;
    if (box()->checkState() == Qt::PartiallyChecked)
        moved = way / 2;
    if (box()->isRightToLeft())
        moved = way - moved;
    painter.setBrush(themes->color(QStringLiteral("ModernKnob")));
    painter.drawEllipse(QRectF(margin + moved, margin, side, side));
}

} // namespace MtConf
