#pragma once

#include <QApplication>
#include <QWheelEvent>
#include <QtTest>

/// Turns the mouse wheel over `widget` down by one step.
inline void turnWheelOver(QWidget *widget)
{
    const QPointF position(widget->rect().center());
    QWheelEvent event(position, widget->mapToGlobal(position.toPoint()), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    // Only spontaneous events are propagated to the parents of a widget.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(widget, &event);
}
