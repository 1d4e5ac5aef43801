#include "KeyHolder.h"

#include <QxtGlobalShortcut>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTextStream>

namespace {

constexpr char sHeld[] = "held\n";
constexpr int sStandardInput = 0;

} // namespace

QString KeyHolder::option()
{
    return QStringLiteral("hold-key");
}

KeyHolder::KeyHolder(const QString &program, const QKeySequence &sequence)
{
    mProgram.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    mProgram.start(
        program, {QStringLiteral("--") + option(), sequence.toString(QKeySequence::PortableText)});
    while (!mProgram.canReadLine() && mProgram.waitForReadyRead()) {}
    mHolds = mProgram.readLine() == sHeld;
}

KeyHolder::~KeyHolder()
{
    mProgram.closeWriteChannel();
    mProgram.waitForFinished();
}

int KeyHolder::run(const QString &sequence)
{
    const QxtGlobalShortcut shortcut(QKeySequence::fromString(sequence));
    QTextStream(stdout) << (shortcut.isValid() ? sHeld : "not held\n") << Qt::flush;
    // Nothing is written to it, so it becomes readable only when the first program has ended.
    const QSocketNotifier end(sStandardInput, QSocketNotifier::Read);
    QObject::connect(&end, &QSocketNotifier::activated, qApp, &QCoreApplication::quit);
    return QCoreApplication::exec();
}
