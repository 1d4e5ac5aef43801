// A service that saves its settings automatically, also when it is ended with SIGTERM or Ctrl+C.
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTextStream>
#include <QTimer>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

int signalSockets[2];

/// Runs at any moment, so it may only call functions that are safe there. QCoreApplication::quit
/// is not.
void handleSignal(int)
{
    const char byte = 0;
    const auto written = ::write(signalSockets[0], &byte, sizeof byte);
    static_cast<void>(written); // quitting is already under way if the socket is full
}

/// Ends the event loop when the program gets SIGTERM or SIGINT.
void quitOnSignals(QCoreApplication *app)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, signalSockets) != 0)
        return;
    const auto *notifier = new QSocketNotifier(signalSockets[1], QSocketNotifier::Read, app);
    QObject::connect(notifier, &QSocketNotifier::activated, app, &QCoreApplication::quit);
    std::signal(SIGTERM, handleSignal);
    std::signal(SIGINT, handleSignal);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    quitOnSignals(&app);

    int starts = 0;
    ConfStorage *store = ConfStorage::instance();
    store->useRobustFiles(); // saves one second after the last change, and at the end
    store->reserveConf("Service.Starts", &starts);
    store->mLocalSaveFile = QCoreApplication::arguments().value(1, "service.json");
    store->loadLocalConfFile();

    QTimer::singleShot(0, &app, [&] {
        store->set("Service.Starts", starts + 1);
        // As the system does at the end of the session.
        if (QCoreApplication::arguments().contains("--terminate"))
            std::raise(SIGTERM);
    });
    const int result = QCoreApplication::exec();
    QTextStream(stdout) << "Service.Starts is " << starts << (store->mChanged ? "" : ", saved")
                        << '\n';
    return result;
}
