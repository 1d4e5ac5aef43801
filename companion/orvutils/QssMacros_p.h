#pragma once

#include <QHash>
#include <QMap>
#include <QSet>
#include <QString>
#include <QVector>

#include <functional>

/// Expands the macros of style sheets in one pass with a stack of open macros, so that nested
/// macros need neither recursion nor more than linear time.
class QssMacros
{
public:
    /// Called for each macro that cannot be expanded, with a text such as "unknown name: " and the
    /// name.
    using Report = std::function<void(const QString &problem)>;

    /// `values` are the values by name; `scale` is the factor of `sca()`.
    QssMacros(const QMap<QString, QString> &values, double scale, const Report &report);

    /// Returns `text` with its macros expanded.
    QString expand(const QString &text);

private:
    enum class Kind { Scale, Variable, PlainParenthesis };
    struct Open
    {
        Kind kind;
        QString::size_type start;    ///< index in the output where the macro starts
        QString::size_type argument; ///< index in the output where its argument starts
    };

    bool expandClosed(const Open &open, QString *out);
    QString scaled(const QString &argument, bool *ok) const;
    QString resolved(const QString &name, bool *ok);

    const QMap<QString, QString> mValues; // a copy, because a report may change the values
    const double mScale;
    const Report mReport;
    QHash<QString, QString> mResolved;
    QSet<QString> mInProgress;
};
