// Queues of the CUPS server.
#include "Destinations.h"

#include <ctime>

namespace host {

namespace {

constexpr int kMilliseconds = 5000;
constexpr std::size_t kPathLength = 1024;

int collect(void *data, unsigned, cups_dest_t *destination)
{
    auto &found = *static_cast<QueueNames *>(data);
    const QString name = QString::fromUtf8(destination->name);
    if (destination->is_default)
        found.standard = name;
    if (!found.names.contains(name)) // instances share the name of their queue
        found.names.append(name);
    return 1;
}

OptionValues optionsOf(const cups_dest_t &destination)
{
    OptionValues values;
    for (int i = 0; i < destination.num_options; ++i)
        values.insert(QString::fromUtf8(destination.options[i].name), QString::fromUtf8(destination.options[i].value));
    return values;
}

std::shared_ptr<FileToRemove> fetchPPD(http_t *http, const QByteArray &name)
{
    char path[kPathLength] = "";
    std::time_t changed = 0;
    if (cupsGetPPD3(http, name.constData(), &changed, path, sizeof(path)) != HTTP_STATUS_OK)
        return nullptr;
    return std::make_shared<FileToRemove>(QFile::decodeName(path));
}

} // namespace

HttpConnection connectToServer()
{
    // Of each thread its own: without it the library would ask for a password on the terminal, and wait there.
    cupsSetPasswordCB2(
        [](const char *, http_t *, const char *, const char *, void *) -> const char * { return nullptr; }, nullptr);
    return HttpConnection(
        httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, kMilliseconds, nullptr));
}

QueueNames queueNames()
{
    QueueNames found;
    if (connectToServer())
        cupsEnumDests(CUPS_DEST_FLAGS_NONE, kMilliseconds, nullptr, 0, 0, collect, &found);
    found.names.sort(Qt::CaseInsensitive);
    return found;
}

std::optional<Queue> findQueue(const QString &name, QString *error)
{
    const HttpConnection http = connectToServer();
    if (!http) {
        *error = QString("%1: no CUPS server answers").arg(name.isEmpty() ? cupsServer() : name);
        return std::nullopt;
    }
    const CupsDestination destination(
        cupsGetNamedDest(http.get(), name.isEmpty() ? nullptr : name.toUtf8().constData(), nullptr));
    if (!destination) {
        *error = name.isEmpty() ? QString("there is no default queue") : QString("%1: no such queue").arg(name);
        return std::nullopt;
    }
    Queue queue{QString::fromUtf8(destination->name), std::nullopt, optionsOf(*destination),
                fetchPPD(http.get(), destination->name)};
    if (const char *uri = cupsGetOption("device-uri", destination->num_options, destination->options))
        queue.uri = QString::fromUtf8(uri);
    if (!queue.ppd) {
        *error = QString("%1: the queue has no PPD").arg(queue.name);
        return std::nullopt;
    }
    return queue;
}

} // namespace host
