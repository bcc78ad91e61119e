// Any bytes as the words of the process that talks with the server: an answer or one sentence, and what is read of an
// answer says the same when it is told again.
#include "Fuzzing.h"

#include "Cups/Wire.h"

#include <QFile>

namespace {

template <class Value>
void readTwice(Value (*read)(const QJsonObject &), const QJsonObject &json)
{
    const QJsonObject told = host::toJson(read(json));
    fuzzing::promise(host::toJson(read(told)) == told);
}

void readAll(const QJsonObject &json)
{
    readTwice(host::queueFrom, json);
    readTwice(host::queuesFrom, json);
    readTwice(host::queueNameFrom, json);
    readTwice(host::ppdFrom, json);
    readTwice(host::jobFrom, json);
    readTwice(host::problemFrom, json);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace std::chrono_literals;
    const QString words = fuzzing::pathOf("words");
    static const bool isReady = [&words] {
        host::setConversationProgram(QN_PARROT);
        return qputenv("QN_WORDS", QFile::encodeName(words));
    }();
    fuzzing::promise(isReady);
    fuzzing::write(words, fuzzing::bytesOf(data, size));
    const auto answer = host::converse({{host::wire::kAsk, host::wire::kQueues}}, {5s, 5s, 0ms}, {}, -1, readAll);
    if (answer)
        readAll(*answer);
    else
        readAll(host::toJson(answer.problem()));
    return 0;
}
