#include "WidgetDump.h"

#include <QAbstractItemView>
#include <QLayout>
#include <QMainWindow>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QStringList>
#include <QWidget>

#include <algorithm>

namespace {

/// What users see or hear of a widget, and what decides how it behaves. Others are read in the
/// first line of the widget.
constexpr const char *sProperties[] = {"windowTitle",
                                       "title",
                                       "text",
                                       "placeholderText",
                                       "toolTip",
                                       "accessibleName",
                                       "accessibleDescription",
                                       "checked",
                                       "readOnly",
                                       "echoMode",
                                       "editable",
                                       "currentText",
                                       "value",
                                       "minimum",
                                       "maximum",
                                       "singleStep",
                                       "prefix",
                                       "suffix",
                                       "displayFormat",
                                       "wordWrap",
                                       "alignment",
                                       "iconSize",
                                       "frameShape",
                                       "frameShadow",
                                       "layoutDirection"};

QString quoted(QString text)
{
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    text.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString sizeText(const QSize &size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

QString valueText(const QVariant &value)
{
    if (value.userType() == QMetaType::QSize)
        return sizeText(value.toSize());
    return value.userType() == QMetaType::QString ? quoted(value.toString()) : value.toString();
}

QString propertyText(const QMetaProperty &property, const QVariant &value)
{
    if (!property.isEnumType())
        return valueText(value);
    const QMetaEnum names = property.enumerator();
    return QString::fromLatin1(property.isFlagType() ? names.valueToKeys(value.toInt())
                                                     : QByteArray(names.valueToKey(value.toInt())));
}

class Dump
{
public:
    explicit Dump(QWidget *window) : mWindow(window) {}

    QString text()
    {
        addWidget(mWindow, 0);
        addTabOrder();
        return mLines.join(QLatin1Char('\n')) + QLatin1Char('\n');
    }

private:
    void add(int depth, const QString &text)
    {
        const bool isEmpty = text.endsWith(QLatin1String(": "));
        mLines += QString(4 * depth, QLatin1Char(' ')) + (isEmpty ? text.chopped(1) : text);
    }

    void addWidget(const QWidget *widget, int depth)
    {
        add(depth, headline(widget));
        const int inner = depth + 1;
        for (const char *name : sProperties)
            addProperty(widget, name, inner);
        addDynamicProperties(widget, inner);
        if (widget != mWindow && !widget->styleSheet().isEmpty())
            add(inner, QStringLiteral("sheet: ") + quoted(widget->styleSheet()));
        if (const auto *view = qobject_cast<const QAbstractItemView *>(widget))
            addRows(view, inner);
        // Qt 5 warns when the items of the layout of a main window are counted.
        if (widget->layout() && !qobject_cast<const QMainWindow *>(widget))
            addLayout(widget->layout(), inner);
        for (const QObject *child : widget->children()) {
            if (const auto *childWidget = qobject_cast<const QWidget *>(child))
                addWidget(childWidget, inner);
        }
    }

    static QString headline(const QWidget *widget)
    {
        QString text = nameOf(widget);
        // The place of a window depends on the screen.
        if (!widget->isWindow())
            text += QStringLiteral(" at %1,%2").arg(widget->x()).arg(widget->y());
        text += QLatin1Char(' ') + sizeText(widget->size());
        text += QStringLiteral(" font %1pt").arg(widget->font().pointSizeF());
        if (widget->font().bold())
            text += QLatin1String(" bold");
        if (widget->focusPolicy() != Qt::NoFocus)
            text += QLatin1Char(' ')
                    + QLatin1String(
                        QMetaEnum::fromType<Qt::FocusPolicy>().valueToKey(widget->focusPolicy()));
        if (!widget->isVisible())
            text += QLatin1String(" hidden");
        if (!widget->isEnabled())
            text += QLatin1String(" disabled");
        return text;
    }

    static QString nameOf(const QObject *object)
    {
        const QString name = QLatin1String(object->metaObject()->className());
        return object->objectName().isEmpty()
                   ? name
                   : name + QLatin1Char(' ') + quoted(object->objectName());
    }

    void addProperty(const QWidget *widget, const char *name, int depth)
    {
        const int index = widget->metaObject()->indexOfProperty(name);
        if (index < 0)
            return;
        const QMetaProperty property = widget->metaObject()->property(index);
        const QString text = propertyText(property, property.read(widget));
        const bool isDefault = text == QLatin1String("\"\"") || text == QLatin1String("false")
                               || text == QLatin1String("LeftToRight");
        if (!isDefault)
            add(depth, QLatin1String(name) + QLatin1String(": ") + text);
    }

    void addDynamicProperties(const QObject *object, int depth)
    {
        QList<QByteArray> names = object->dynamicPropertyNames();
        std::sort(names.begin(), names.end());
        for (const QByteArray &name : std::as_const(names)) {
            // Qt's own, for its style sheets.
            if (!name.startsWith("_q_"))
                add(depth, QStringLiteral("[%1]: ").arg(QLatin1String(name))
                               + valueText(object->property(name.constData())));
        }
    }

    void addLayout(const QLayout *layout, int depth)
    {
        const QMargins margins = layout->contentsMargins();
        add(depth, nameOf(layout)
                       + QStringLiteral(" margins %1,%2,%3,%4 spacing %5")
                             .arg(margins.left())
                             .arg(margins.top())
                             .arg(margins.right())
                             .arg(margins.bottom())
                             .arg(layout->spacing()));
        addDynamicProperties(layout, depth + 1);
        for (int i = 0; i < layout->count(); ++i) {
            if (const QLayout *child = layout->itemAt(i)->layout())
                addLayout(child, depth + 1);
        }
    }

    void addRows(const QAbstractItemView *view, int depth)
    {
        const QAbstractItemModel *model = view->model();
        for (int row = 0; model && row < model->rowCount(); ++row) {
            const QModelIndex index = model->index(row, 0);
            QString text = QStringLiteral("row: ") + quoted(index.data().toString());
            if (!index.data(Qt::DecorationRole).isNull())
                text += QLatin1String(" with icon");
            if (index == view->currentIndex())
                text += QLatin1String(" current");
            add(depth, text);
        }
    }

    void addTabOrder()
    {
        add(0, QStringLiteral("tab order:"));
        const QWidget *widget = mWindow;
        do {
            if ((widget->focusPolicy() & Qt::TabFocus) && widget->isVisible()
                && !widget->focusProxy())
                add(1, nameOf(widget) + QLatin1Char(' ') + quoted(widget->accessibleName()));
            widget = widget->nextInFocusChain();
        } while (widget != mWindow);
    }

    QWidget *mWindow;
    QStringList mLines;
};

} // namespace

QString widgetDump(QWidget *window)
{
    return Dump(window).text();
}
