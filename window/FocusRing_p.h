#pragma once

#include <QObject>
#include <QPointer>

#include <memory>

class QFocusFrame;
class QStyle;
class QWidget;

namespace MtConf {

/// Draws a ring in the accent colour around the widget with the keyboard focus, in a window and in
/// its dialogs. Style sheets cannot do it for every widget: some have sheets of their own that
/// remove the border, and lists and scroll areas would move their content.
class FocusRing : public QObject
{
    Q_OBJECT
public:
    /// Gives `root` a ring in the theme's colour `color`, unless it has one already. The ring is
    /// deleted with `root`.
    static void follow(QWidget *root, const QString &color);
    ~FocusRing() override;

private:
    FocusRing(QWidget *root, const QString &color);
    bool isResponsibleFor(const QWidget *widget) const;
    void onFocusChanged(QWidget *former, QWidget *now);
    void surround(QWidget *widget);

    const std::unique_ptr<QStyle> mStyle;
    // A child of the scroll area or of the window that it is in, which may delete it.
    QPointer<QFocusFrame> mFrame;
    QMetaObject::Connection mRowConnection; // of a list with the focus
};

} // namespace MtConf
