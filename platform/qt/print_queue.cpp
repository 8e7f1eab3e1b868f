#include "platform/qt/print_queue.hpp"

#include <QByteArray>
#include <QLibrary>
#include <QPrinterInfo>
#include <QString>

#include <sys/socket.h>

namespace quittika {

namespace {

/// The public part of the print system's client library that is used here. It is looked up at run time,
/// because Qt says nothing of a queue that rejects jobs and because a machine may lack it.
struct Option;
struct Destination {
    char* name;
    char* instance;
    int is_default;
    int option_count;
    Option* options;
};
using GetDestination = Destination* (*)(void* connection, const char* name, const char* instance);
using GetOption = const char* (*)(const char* name, int count, Option* options);
using FreeDestinations = void (*)(int count, Destination* destinations);
using ServerName = const char* (*)();
using Number = int (*)();
using Connect = void* (*)(const char* host, int port, void* addresses, int family, int encryption,
                          int blocking, int milliseconds, int* cancel);
using Close = void (*)(void* connection);

constexpr const char* kStateStopped = "5";
constexpr int kPatience = 5000; ///< milliseconds for the print server to answer

enum class Obstacle { None, Server, Unknown, Stopped, Closed };

bool server_answers(QLibrary& cups) {
    const auto server = reinterpret_cast<ServerName>(cups.resolve("cupsServer"));
    const auto port = reinterpret_cast<Number>(cups.resolve("ippPort"));
    const auto encryption = reinterpret_cast<Number>(cups.resolve("cupsEncryption"));
    const auto connect = reinterpret_cast<Connect>(cups.resolve("httpConnect2"));
    const auto close = reinterpret_cast<Close>(cups.resolve("httpClose"));
    if (server == nullptr || port == nullptr || encryption == nullptr || connect == nullptr ||
        close == nullptr) {
        return true;
    }
    void* const connection =
        connect(server(), port(), nullptr, AF_UNSPEC, encryption(), 1, kPatience, nullptr);
    if (connection != nullptr) {
        close(connection);
    }
    return connection != nullptr;
}

Obstacle state_of(QLibrary& cups, const QByteArray& name, const QByteArray& instance) {
    const auto get = reinterpret_cast<GetDestination>(cups.resolve("cupsGetNamedDest"));
    const auto option = reinterpret_cast<GetOption>(cups.resolve("cupsGetOption"));
    const auto release = reinterpret_cast<FreeDestinations>(cups.resolve("cupsFreeDests"));
    if (get == nullptr || option == nullptr || release == nullptr) {
        return Obstacle::None;
    }
    Destination* queue = get(nullptr, name.constData(), instance.isEmpty() ? nullptr : instance.constData());
    if (queue == nullptr) {
        return Obstacle::None;
    }
    const QByteArray accepts = option("printer-is-accepting-jobs", queue->option_count, queue->options);
    const QByteArray state = option("printer-state", queue->option_count, queue->options);
    release(1, queue);
    return accepts == "false"       ? Obstacle::Closed
           : state == kStateStopped ? Obstacle::Stopped
                                    : Obstacle::None;
}

Obstacle obstacle_on(const QString& printer_name) {
    QLibrary cups(QStringLiteral("cups"), 2);
    if (!server_answers(cups)) {
        return Obstacle::Server;
    }
    const QPrinterInfo info = QPrinterInfo::printerInfo(printer_name);
    if (info.isNull()) {
        return Obstacle::Unknown;
    }
    if (info.state() == QPrinter::Error || info.state() == QPrinter::Aborted) {
        return Obstacle::Stopped;
    }
    const QByteArray full = printer_name.toUtf8();
    const qsizetype slash = full.indexOf('/');
    return slash < 0 ? state_of(cups, full, {}) : state_of(cups, full.left(slash), full.mid(slash + 1));
}

} // namespace

std::string obstacle_to_printing(const QString& printer_name) {
    const std::string printer = "Der Drucker " + printer_name.toStdString();
    switch (obstacle_on(printer_name)) {
    case Obstacle::Server:
        return "Der Druckserver ist nicht erreichbar. Bitte den Druckdienst starten oder in eine PDF-Datei "
               "drucken.";
    case Obstacle::Unknown:
        return printer + " ist dem System nicht bekannt. Bitte einen anderen Drucker wählen.";
    case Obstacle::Stopped:
        return printer + " ist angehalten. Bitte in den Druckereinstellungen des Systems fortsetzen.";
    case Obstacle::Closed:
        return printer + " nimmt keine Aufträge an. Bitte in den Druckereinstellungen des Systems freigeben.";
    case Obstacle::None:
        break;
    }
    return {};
}

} // namespace quittika
