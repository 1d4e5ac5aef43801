#pragma once

#include <QHash>
#include <QMap>
#include <QSet>
#include <QString>
#include <QVector>

#include <functional>

/// Expands the macros of style sheets. One pass over the text with a stack of open macros, so that
/// no nesting costs more than its length or runs deep in calls.
class QssMacros
{
public:
    /// Called with "unknown name: " and the name, and the like, at each occurrence.
    using Report = std::function<void(const QString &problem)>;

    /// `values` must outlive the object.
    QssMacros(const QMap<QString, QString> &values, double scale, const Report &report);

    /// `text` with its macros expanded.
    QString expand(const QString &text);

private:
    enum class Kind { Scale, Variable, PlainParenthesis };
    struct Open
    {
        Kind kind;
        QString::size_type start;    ///< where its text begins in the output
        QString::size_type argument; ///< where its argument begins in the output
    };

    bool expandClosed(const Open &open, QString *out);
    QString scaled(const QString &argument, bool *ok) const;
    QString resolved(const QString &name, bool *ok);

    const QMap<QString, QString> &mValues;
    const double mScale;
    const Report mReport;
    QHash<QString, QString> mResolved;
    QSet<QString> mInProgress;
};
