#include "ResetQuestion_p.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QStyle>

namespace MtConf {

namespace {

constexpr int sMostCaptions = 5;

/// The texts of the question.
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(MtConf::ResetQuestion)
public:
    /// Source texts have no plural without a translation, so one setting has a text of its own.
    static QString question(ResetScope scope, int count)
    {
        const bool isPage = scope == ResetScope::Page;
        if (count == 0)
            return isPage ? tr("Reset this page?") : tr("Reset all settings?");
        if (count == 1)
            return isPage ? tr("Reset 1 setting on this page?")
                          : tr("Reset 1 setting on all pages?");
        return isPage ? tr("Reset %n settings on this page?", nullptr, count)
                      : tr("Reset %n settings on all pages?", nullptr, count);
    }
    static QString reset() { return tr("Reset"); }
    static QString cancel() { return tr("Cancel"); }
};

/// Returns the first captions, one in each line.
QString list(const QStringList &captions)
{
    QStringList lines = captions.mid(0, sMostCaptions);
    if (captions.size() > lines.size())
        lines.append(QStringLiteral("…"));
    return lines.join(QLatin1Char('\n'));
}

} // namespace

bool askToReset(QWidget *window, ResetScope scope, const QStringList &captions)
{
    const QPointer<QWidget> self(window);
    const QPointer<QMessageBox> box(new QMessageBox(window));
    box->setObjectName(QStringLiteral("ResetQuestion"));
    box->setWindowTitle(window->windowTitle());
    box->setTextFormat(Qt::PlainText);
    box->setText(Texts::question(scope, static_cast<int>(captions.size())));
    box->setInformativeText(list(captions));
    QPushButton *const reset = box->addButton(Texts::reset(), QMessageBox::DestructiveRole);
    reset->setObjectName(QStringLiteral("ModernReset"));
    reset->style()->unpolish(reset); // the box has polished it without the name
    reset->style()->polish(reset);
    QPushButton *const cancel = box->addButton(Texts::cancel(), QMessageBox::RejectRole);
    box->setDefaultButton(cancel);
    box->setEscapeButton(cancel);
    box->exec();
    if (!self || !box) // deleted while the question was open
        return false;
    box->deleteLater();
    return box->clickedButton() == reset;
}

} // namespace MtConf
