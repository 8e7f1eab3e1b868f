#include "platform/qt/print_queue.hpp"

#include <QByteArray>
#include <QLibrary>
#include <QPrinterInfo>
#include <QString>

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

constexpr const char* kStateStopped = "5";

bool willing(const QByteArray& name, const QByteArray& instance) {
    QLibrary cups(QStringLiteral("cups"), 2);
    const auto get = reinterpret_cast<GetDestination>(cups.resolve("cupsGetNamedDest"));
    const auto option = reinterpret_cast<GetOption>(cups.resolve("cupsGetOption"));
    const auto release = reinterpret_cast<FreeDestinations>(cups.resolve("cupsFreeDests"));
    if (get == nullptr || option == nullptr || release == nullptr) {
        return true;
    }
    Destination* queue = get(nullptr, name.constData(), instance.isEmpty() ? nullptr : instance.constData());
    if (queue == nullptr) {
        return true;
    }
    const QByteArray accepts = option("printer-is-accepting-jobs", queue->option_count, queue->options);
    const QByteArray state = option("printer-state", queue->option_count, queue->options);
    release(1, queue);
    return accepts != "false" && state != kStateStopped;
}

} // namespace

bool queue_takes_jobs(const QString& printer_name) {
    const QPrinterInfo info = QPrinterInfo::printerInfo(printer_name);
    if (info.isNull() || info.state() == QPrinter::Error || info.state() == QPrinter::Aborted) {
        return false;
    }
    const QByteArray full = printer_name.toUtf8();
    const qsizetype slash = full.indexOf('/');
    return slash < 0 ? willing(full, {}) : willing(full.left(slash), full.mid(slash + 1));
}

} // namespace quittika
