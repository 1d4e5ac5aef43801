#pragma once

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// The running example "hotkey-tray", with the code of driveHotkeyTray.cpp in it.
class HotkeyTray
{
public:
    /// Starts it with a configuration folder of its own.
    explicit HotkeyTray(QProcessEnvironment environment)
    {
        environment.insert("XDG_CONFIG_HOME", mFolder.path());
        mProgram.setProcessEnvironment(environment);
        mProgram.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        mProgram.start(HOTKEY_TRAY, QStringList());
    }
    ~HotkeyTray()
    {
        mProgram.closeWriteChannel(); // which ends it
        if (!mProgram.waitForFinished())
            mProgram.kill();
    }
    Q_DISABLE_COPY(HotkeyTray)

    /// Returns whether it prints `line`, now or soon.
    bool prints(const QString &line)
    {
        return QTest::qWaitFor([&] {
            while (mProgram.canReadLine()) {
                if (QString::fromUtf8(mProgram.readLine()).chopped(1) == line)
                    return true;
            }
            return false;
        });
    }
    void hideWindow() { mProgram.write("hide\n"); }

private:
    QTemporaryDir mFolder;
    QProcess mProgram;
};
