#pragma once

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QTemporaryDir>
#include <QtTest>

/// Runs the test class `Test` as a program: on the offscreen platform unless QT_QPA_PLATFORM is
/// set, at 96 dots per inch, in the C locale, and in an empty temporary folder of its own, so that
/// test programs can run in parallel without seeing each other's files.
template<class Test> int runTest(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("QT_FONT_DPI"))
        qputenv("QT_FONT_DPI", "96");
    QLocale::setDefault(QLocale::c());
    const QTemporaryDir folder;
    if (!folder.isValid() || !QDir::setCurrent(folder.path()))
        qFatal("no temporary folder for the test: %s", qPrintable(folder.errorString()));
    QApplication application(argc, argv);
    Test test;
    const int failures = QTest::qExec(&test, argc, argv);
    QDir::setCurrent(QDir::rootPath());
    return failures;
}
