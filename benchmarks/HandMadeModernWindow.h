#pragma once

#include "HandMadeWindow.h"

/// The same for the modern look: a frame for each row, captions that wrap, and fields at its end.
class HandMadeModernWindow : public HandMadeWindow
{
public:
    using HandMadeWindow::HandMadeWindow;

protected:
    void addTitle(const QString &caption) override;
    void addRows(QGroupBox *box, int count) override;

private:
    QFrame *makeRow(QGroupBox *box, int i);
};
