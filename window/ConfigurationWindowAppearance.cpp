#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include "FocusRing_p.h"
#include "LookValues_p.h"
#include "MaltoConfiguration/widgets/HostCode_p.h"
#include "WindowFeature_p.h"
#include "WindowGeometryFile_p.h"
#include "ui_ConfigurationWindow.h"

#include "QtCompat_p.h"

#include <OrvUtils/OrvScreenManager.h>
#include <OrvUtils/QThemeCtrl.h>

#include <QIconfont/QIconfont.h>

#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QStandardItemModel>
#include <QStyle>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace MtConf {

namespace {

WindowGeometryFile geometryFile()
{
    return WindowGeometryFile(QStringLiteral("ConfigurationWindowConfig.ini"));
}

/// Returns `file` if it exists and is allowed, or else the first of `resources` that
/// exists, or else the last.
QString firstExisting(const QString &file, const QStringList &resources, bool allowsFiles)
{
    QStringList sources = resources;
    if (allowsFiles)
        sources.prepend(file);
    const auto found = std::find_if(sources.cbegin(), sources.cend() - 1,
                                    [](const QString &source) { return QFile::exists(source); });
    return *found;
}

/// Multiplies the size, and the distance from `origin`, by `factor`. Qt scales a window in the same
/// way: the upper left corner of a screen is the same point in both kinds of pixels.
QRect scaled(const QRect &geometry, const QPoint &origin, qreal factor)
{
    return {(geometry.topLeft() - origin) * factor + origin, geometry.size() * factor};
}

/// Returns the geometry for the pixels of the geometry file.
QRect toSaved(const QRect &geometry, const QScreen *screen)
{
    return scaled(geometry, screen->geometry().topLeft(), QtCompat::savedPixelRatio(screen));
}

/// Returns the geometry of the window for a saved one, or an invalid one if the saved one is not
/// inside one of the present screens or touches an edge of it.
QRect fromSaved(const QRect &saved)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens) {
        const QRect area = toSaved(screen->geometry(), screen);
        if (area.contains(saved.center())) {
            if (!area.contains(saved, true))
                return QRect();
            return scaled(saved, area.topLeft(), 1 / QtCompat::savedPixelRatio(screen));
        }
    }
    return QRect();
}

/// Applies the sheets as setQssForWidget() does, from the working directory if it is allowed.
void applySheets(QWidget *widget, double scale, bool allowsFiles)
{
    // The library's common sheet has a path of its own, so that a host can register its own.
    const QString common = firstExisting(
        QStringLiteral("./res/qss/CommonWindow.qss"),
        {QStringLiteral(":/qss/CommonWindow"), QStringLiteral(":/malto/qss/CommonWindow")},
        allowsFiles);
    const QString own = firstExisting(
        QStringLiteral("ThirdParty/MaltoConfiguration/res/ConfigurationWindow.qss"),
        {QStringLiteral(":/qss/ConfigurationWindow")}, allowsFiles);
    QThemeCtrl::instance()->handleQssFile(widget, {common, own}, scale);
    if (widget)
        FocusRing::follow(widget, QStringLiteral("ColorMain"));
}

void applyModernSheet(QWidget *widget, const LookValues &values, double scale)
{
    QThemeCtrl::instance()->handleQssFile(widget, values.sheets, scale / values.unitsPerPoint);
    FocusRing::follow(widget, QStringLiteral("ModernAccent"));
}

} // namespace

void setQssForWidget(QWidget *widget, double scale)
{
    applySheets(widget, scale, ConfigurationWindow::sSheetsOfWorkingDirectory);
}

LookValues ConfigurationWindow::look() const
{
    return lookValues(mIsModern ? ModernLook : ClassicLook);
}

double ConfigurationWindow::screenScale() const
{
    return OrvScreenManager::instance()->widgetScreen(this).dpi / 72;
}

void ConfigurationWindow::initAppearance()
{
    mScale = screenScale();
    const WindowGeometryFile::Saved saved = mUsesFiles ? geometryFile().read()
                                                       : WindowGeometryFile::Saved();
    if (saved.found) {
        // With a geometry that no longer fits, the window keeps the size of its form. The default
        // geometry is for users who never moved the window.
        const QRect geometry = saved.geometry.isValid() ? fromSaved(saved.geometry) : QRect();
        if (geometry.isValid())
            setGeometry(geometry);
    } else {
        applyDefaultGeometry();
    }
    // Widgets of the form that have style sheets keep their old rules unless the window is already
    // polished when it gets its own sheet.
    ensurePolished();
    loadQss();
    connect(QThemeCtrl::instance(), &QThemeCtrl::sigThemeChanged, this,
            &ConfigurationWindow::loadQss);
}

void ConfigurationWindow::applyDefaultGeometry()
{
    const QPoint center = OrvScreenManager::instance()->primaryScreen().rect.center();
    const auto centerX = static_cast<float>(center.x());
    const auto centerY = static_cast<float>(center.y());
    QSizeF size = look().size * mScale;
    if (mIsModern)
        size = size.boundedTo(OrvScreenManager::instance()->primaryScreen().rect.size());
    const auto width = static_cast<float>(size.width());
    const auto height = static_cast<float>(size.height());
    setGeometry(qRound(centerX - width / 2), qRound(centerY - height / 2), qRound(width),
                qRound(height));
}

void ConfigurationWindow::saveGeometryToFile() const
{
    if (!mUsesFiles)
        return;
    // There is no screen any more if the window outlives the application.
    const QScreen *present = screen();
    geometryFile().write(present ? toSaved(geometry(), present) : geometry());
}

void ConfigurationWindow::loadQss()
{
    const HostCodeScope scope(mHostCode);
    mScale = screenScale();
    const LookValues values = look();
    if (values.sheets.isEmpty())
        applySheets(this, mScale, mUsesFiles && sSheetsOfWorkingDirectory);
    else
        applyModernSheet(this, values, mScale);
    refreshItemIcon();
    tellFeatures(&WindowFeature::sheetApplied);
    // The button applies the window's new sheet only after it is polished again.
    QTimer::singleShot(0, this, [this] {
        QStyle *style = mUi->btnRestoreDefault->style();
        style->unpolish(mUi->btnRestoreDefault);
        style->polish(mUi->btnRestoreDefault);
    });
}

void ConfigurationWindow::refreshItemIcon()
{
    const LookValues values = look();
    const QColor color = QThemeCtrl::instance()->color(values.iconColor);
    const QColor selected = values.selectedIconColor.isEmpty()
                                ? QColor(Qt::white)
                                : QThemeCtrl::instance()->color(values.selectedIconColor);
    const int size = static_cast<int>(values.iconSize * mScale);
    for (auto row = mItemIcons.cbegin(); row != mItemIcons.cend(); ++row) {
        const auto glyph = mIconMap.constFind(row.value());
        if (glyph == mIconMap.constEnd()) {
            row.key()->setIcon(QIcon());
            continue;
        }
        QIcon icon = QIconfont::Icon(*glyph, color, size, QMargins());
        // The selected row has white text on the main colour, and a white icon. It needs the same
        // sizes as the normal icon, or the list draws one larger than the other.
        for (const int factor : {1, 2, 3}) {
            QPixmap pixmap = QIconfont::Pixmap(*glyph, selected, size * factor, QMargins());
            pixmap.setDevicePixelRatio(1);
            icon.addPixmap(pixmap, QIcon::Selected);
        }
        row.key()->setIcon(icon);
    }
}

QString ConfigurationWindow::translatedName(const QString &name)
{
    return tr(name.toUtf8().constData());
}

void ConfigurationWindow::retranslateUi()
{
    mUi->retranslateUi(this);
    // An editor of the host may open another page or close the window.
    const HostCodeScope scope(mHostCode);
    const QPointer<ConfigurationWindow> self(this);
    const QList<PageRow> rows = mRows;
    for (const PageRow &row : rows) {
        if (row.editor)
            row.editor->retranslateUi();
    }
    if (!self)
        return;
    for (auto row = mItemIcons.cbegin(); row != mItemIcons.cend(); ++row)
        row.key()->setText(translatedName(row.value()));
    // Captions of the builder, not labels on a page of the host.
    const QList<QLabel *> labels = mUi->gboxConfigBoard->findChildren<QLabel *>(
        QString(), Qt::FindDirectChildrenOnly);
    for (QLabel *label : labels) {
        const QString source = label->property("SourceText").toString();
        if (!source.isEmpty() && label->property("ClassLabel").isValid())
            label->setText(translatedName(source));
    }
    describePage();
    tellFeatures(&WindowFeature::retranslate);
}

} // namespace MtConf
