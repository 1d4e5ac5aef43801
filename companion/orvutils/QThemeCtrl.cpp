#include <OrvUtils/QThemeCtrl.h>

#include "QssMacros_p.h"
#include "QtCompat_p.h"
#include "SheetWatcher_p.h"
#include "ThemeValues_p.h"

#include <QDebug>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPalette>
#include <QWidget>

#include <utility>

QThemeCtrl *QThemeCtrl::instance()
{
    // Never destroyed: static windows of the host may use it while the process exits.
    static QThemeCtrl *const sInstance = new QThemeCtrl;
    sInstance->followApplication();
    return sInstance;
}

QThemeCtrl::QThemeCtrl()
    : mLightValues(lightThemeValues()), mDarkValues(darkThemeValues()),
      mWatcher(new SheetWatcher(this))
{
    connect(mWatcher, &SheetWatcher::sheetsChanged, this, &QThemeCtrl::sigThemeChanged);
}

void QThemeCtrl::handleQssFile(QWidget *widget, const QStringList &files, double scale)
{
    if (!widget)
        return;
    QString sheet;
    QHash<QString, QByteArray> diskSheets;
    for (const QString &file : files) {
        const QByteArray content = readSheet(file);
        if (content.isNull()) {
            qWarning().noquote().nospace() << "QThemeCtrl::handleQssFile cannot read: " << file;
            continue;
        }
        // Up to a zero byte, at which the overload for QByteArray stops with Qt 5 but not with
        // Qt 6.
        sheet += QString::fromUtf8(content.constData()) + QLatin1Char('\n');
        if (!file.startsWith(QLatin1Char(':')))
            diskSheets.insert(QFileInfo(file).absoluteFilePath(), content);
    }
    mWatcher->watch(widget, diskSheets);
    widget->setStyleSheet(expandMacros(sheet, scale));
}

QString QThemeCtrl::expandMacros(const QString &sheet, double scale) const
{
    return expanded(values(), sheet, scale);
}

QString QThemeCtrl::expanded(const QMap<QString, QString> &values, const QString &text,
                             double scale) const
{
    QssMacros macros(values, scale, [this](const QString &problem) { warnOnce(problem); });
    return macros.expand(text);
}

void QThemeCtrl::warnOnce(const QString &text) const
{
    if (mWarned.contains(text))
        return;
    mWarned.insert(text);
    qWarning().noquote().nospace() << "QThemeCtrl::handleQssFile " << text;
}

void QThemeCtrl::setTheme(Theme theme)
{
    mTheme = theme;
    updateLook();
}

QThemeCtrl::Theme QThemeCtrl::theme() const
{
    return mTheme;
}

bool QThemeCtrl::isDark() const
{
    return mDark;
}

void QThemeCtrl::updateLook()
{
    const bool wasDark = std::exchange(mDark, mTheme == Theme::System ? mSystemDark
                                                                      : mTheme == Theme::Dark);
    const QMap<QString, QString> former = std::exchange(mContrastValues, contrastValues());
    if (mDark != wasDark || mContrastValues != former)
        Q_EMIT sigThemeChanged();
}

QMap<QString, QString> QThemeCtrl::values() const
{
    QMap<QString, QString> values = mDark ? mDarkValues : mLightValues;
    for (auto value = mContrastValues.cbegin(); value != mContrastValues.cend(); ++value)
        values.insert(value.key(), *value);
    return values;
}

void QThemeCtrl::setContrast(Contrast contrast)
{
    mContrast = contrast;
    updateLook();
}

QThemeCtrl::Contrast QThemeCtrl::contrast() const
{
    return mContrast;
}

bool QThemeCtrl::isHighContrast() const
{
    return !mContrastValues.isEmpty();
}

/// Returns the values that high contrast replaces; none if the contrast is not high.
QMap<QString, QString> QThemeCtrl::contrastValues() const
{
    const bool isSystemHigh = isOfHighContrast(mSystemPalette);
    if (mContrast == Contrast::Normal || (mContrast == Contrast::System && !isSystemHigh))
        return {};
    // The palette of the system fits the theme if both are dark, or both light.
    const bool fits = isSystemHigh && mDark == mSystemDark;
    return contrastThemeValues(fits ? mSystemPalette : contrastPalette(mDark));
}

QString QThemeCtrl::value(const QString &name) const
{
    return values().value(name);
}

QColor QThemeCtrl::color(const QString &name) const
{
    return colorOf(values(), name);
}

QColor QThemeCtrl::colorOf(const QMap<QString, QString> &values, const QString &name) const
{
    return QColor(expanded(values, values.value(name), 1).trimmed());
}

void QThemeCtrl::setValue(Theme theme, const QString &name, const QString &value)
{
    if (theme != Theme::Dark)
        mLightValues.insert(name, value);
    if (theme != Theme::Light)
        mDarkValues.insert(name, value);
}

QPalette QThemeCtrl::palette() const
{
    const QColor card = color(QStringLiteral("ColorBg1"));
    const QColor text = color(QStringLiteral("ColorFg0"));
    const QColor accent = color(QStringLiteral("ColorMain"));
    const QColor faint = color(QStringLiteral("ColorDisable"));
    // The accent colour is a background for white text. As the colour of links it is too dark on a
    // dark background.
    const QColor link = mDark ? accent.lighter(150) : accent;

    QPalette result(card, color(QStringLiteral("ColorBg0")));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        result.setColor(role, text);
        result.setColor(QPalette::Disabled, role, faint);
    }
    result.setColor(QPalette::Base, color(QStringLiteral("ColorBg3")));
    result.setColor(QPalette::AlternateBase, card);
    result.setColor(QPalette::ToolTipBase, card);
    result.setColor(QPalette::PlaceholderText, faint);
    result.setColor(QPalette::BrightText, Qt::white);
    result.setColor(QPalette::Highlight, accent);
    result.setColor(QPalette::Disabled, QPalette::Highlight, faint);
    result.setColor(QPalette::HighlightedText, Qt::white);
    result.setColor(QPalette::Link, link);
    result.setColor(QPalette::LinkVisited, link);
    return result;
}

void QThemeCtrl::followApplication()
{
    auto *const application = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    if (!application || application == mApplication)
        return;
    mApplication = application;
    // Not an event filter: a filter on the application receives all events of all objects, and the
    // event is not sent before the event loop runs.
    QtCompat::connectPaletteChanged(application, this, &QThemeCtrl::onApplicationPalette);
    onApplicationPalette(QGuiApplication::palette());
}

void QThemeCtrl::onApplicationPalette(const QPalette &palette)
{
    if (isOwnPalette(palette))
        return;
    mSystemPalette = palette;
    mSystemDark = palette.color(QPalette::Window).lightness()
                  < palette.color(QPalette::WindowText).lightness();
    updateLook();
}

bool QThemeCtrl::isOwnPalette(const QPalette &palette) const
{
    // Compare only two colours, so that a host may change the other roles.
    const QString window = QStringLiteral("ColorBg0");
    const QString text = QStringLiteral("ColorFg0");
    for (const QMap<QString, QString> *theme : {&mLightValues, &mDarkValues}) {
        if (palette.color(QPalette::Window) == colorOf(*theme, window)
            && palette.color(QPalette::WindowText) == colorOf(*theme, text))
            return true;
    }
    return false;
}
