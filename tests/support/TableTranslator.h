#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QTranslator>

/// Translates the texts of a table, in every context, as long as it exists.
class TableTranslator : public QTranslator
{
public:
    explicit TableTranslator(const QHash<QString, QString> &table) : mTable(table)
    {
        QCoreApplication::installTranslator(this);
    }
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return mTable.value(QString::fromUtf8(text));
    }

private:
    const QHash<QString, QString> mTable;
};
