// Any bytes as the answers of a CUPS server: what to ask it, and behind each line of dashes an answer. What was asked
// for comes, or one sentence, and soon.
#include "AnsweringServer.h"
#include "Fuzzing.h"

#include "Server/Printers.h"
#include "Server/SentJob.h"

#include <QDir>

namespace {

constexpr std::chrono::milliseconds kPatience{200};

/// Sentences go to a terminal and into one line of the window.
template <class Value>
void expectOneSentence(const foundation::Or<Value> &answer)
{
    fuzzing::promise(answer || !answer.problem().sentence.isEmpty());
    fuzzing::promise(answer || !answer.problem().sentence.contains('\n'));
}

void send(bool knowsPPD)
{
    auto document = host::Document::open(QN_EXAMPLES "/documents/ticket.pdf");
    fuzzing::promise(static_cast<bool>(document));
    host::JobOrder order{"counter", {}, {}, kPatience};
    order.job.document = *std::move(document);
    order.job.title = "Ticket";
    order.job.options["QnMedia"] = "Thermal";
    if (knowsPPD)
        order.ppd = host::CachedPPD{{}, 1, "digest"};
    int made = 0;
    const auto sent = host::sendJob(order, [&made](int number) { made = number; }, [](qint64, qint64) {}, {});
    expectOneSentence(sent);
    fuzzing::promise(!sent || (sent->id > 0 && sent->id == made));
}

void ask(char what)
{
    switch (what) {
    case 'q': return expectOneSentence(host::askForQueue({"counter", {}}, kPatience));
    case 'd': return expectOneSentence(host::askForQueue({}, kPatience));
    case 'c': return expectOneSentence(host::cancelJob(7, kPatience));
    case 's': return send(false);
    case 'p': return send(true);
    default: return expectOneSentence(host::askForQueues(kPatience));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = fuzzing::bytesOf(data, size);
    QByteArrayList answers;
    for (qsizetype at = bytes.indexOf("\n----\n"); at >= 0;) {
        const qsizetype next = bytes.indexOf("\n----\n", at + 6);
        answers.append(bytes.mid(at + 6, next < 0 ? -1 : next - at - 6));
        at = next;
    }
    QDir(fuzzing::pathOf("cache")).removeRecursively();
    const QString path = fuzzing::pathOf("socket");
    const fuzzing::AnsweringServer server(path, answers);
    cupsSetServer(path.toUtf8().constData());
    ask(bytes.isEmpty() ? '\0' : bytes.front());
    return 0;
}
