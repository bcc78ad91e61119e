// The service for applications, by somebody who plays the desktop's portal and trusts nothing: each call is answered
// once, whatever comes in and whatever dies.
#include "Print.h"
#include "Screen.h"

#include "Foundation/Shadow.h"
#include "Portal/PrintPortal.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusInterface>
#include <QDBusPendingCall>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <ostream>
#include <sys/resource.h>
#include <unistd.h>

using support::Seen;

namespace {

constexpr auto kTicket = QN_SOURCE_DIR "/examples/documents/ticket.pdf";
constexpr auto kPPD = QN_SOURCE_DIR "/examples/ppd/full.ppd";
constexpr auto kPrint = "org.freedesktop.impl.portal.Print";
constexpr auto kRequest = "org.freedesktop.impl.portal.Request";
constexpr auto kOthersName = "org.test.portal.others";
constexpr int kMilliseconds = 20000;

/// What a call came to.
struct Answer
{
    QString error; // empty for none
    uint response = 99;
    QVariantMap results;

    QVariantMap part(const char *name) const { return qdbus_cast<QVariantMap>(results[name]); }
};

/// An open end of a pipe or a file, closed with the test.
class Descriptor
{
public:
    explicit Descriptor(int number)
        : m_number(number)
    {}
    ~Descriptor() { close(); }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    int number() const { return m_number; }
    void close()
    {
        if (m_number >= 0)
            ::close(std::exchange(m_number, -1));
    }

private:
    int m_number;
};

/// Processes whose parent is another, by number.
QList<pid_t> childrenOf(qint64 parent)
{
    QList<pid_t> children;
    for (const QString &each : QDir("/proc").entryList(QDir::Dirs)) {
        QFile file("/proc/" + each + "/stat");
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray stat = file.readAll();
        const auto fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
        if (fields.size() > 1 && fields[1].toLongLong() == parent && fields[0] != "Z")
            children.append(each.toInt());
    }
    return children;
}

class PortalService : public testing::Test
{
protected:
    void SetUp() override
    {
        const auto noScreen = m_screen.start();
        ASSERT_FALSE(noScreen) << noScreen->toStdString();
        m_environment = m_screen.extended(QProcessEnvironment::systemEnvironment());
        m_environment.insert("XDG_CONFIG_HOME", path("config"));
        m_environment.insert("XDG_CONFIG_DIRS", path("none"));
        m_environment.insert("XDG_DESKTOP_PORTAL_DIR", path("portals"));
        m_environment.insert("TMPDIR", path("tmp"));
        m_environment.insert("XDG_RUNTIME_DIR", path("run"));
        for (const char *folder : {"tmp", "portals", "run"})
            QDir(m_folder.path()).mkpath(folder);
        QFile::setPermissions(path("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        m_bus = std::make_unique<QDBusConnection>(connect("portal"));
        ASSERT_TRUE(m_bus->isConnected());
    }
    void TearDown() override
    {
        if (HasFailure())
            for (const Seen &each : m_screen.look("qnprint"))
                std::cerr << each.role.toStdString() << " \"" << each.name.toStdString() << "\"\n";
        m_service.terminate();
        if (!m_service.waitForFinished(kMilliseconds))
            m_service.kill();
        EXPECT_EQ(QDir(path("tmp")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList()) << "left behind";
        for (const QString &name : m_connections)
            QDBusConnection::disconnectFromBus(name);
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QDBusConnection connect(const QString &name)
    {
        m_connections.append(name);
        return QDBusConnection::connectToBus(m_environment.value("DBUS_SESSION_BUS_ADDRESS"), name);
    }
    void startService(rlim_t largestFile = RLIM_INFINITY)
    {
        m_service.setProcessEnvironment(m_environment);
        m_service.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_service.setChildProcessModifier([largestFile] {
            const rlimit limit{largestFile, largestFile};
            ::setrlimit(RLIMIT_FSIZE, &limit);
        });
        m_service.start(QN_PROGRAM, {"portal", "--ppd", kPPD, "--output", path("out"), "--language", "en"});
        ASSERT_TRUE(m_service.waitForStarted(kMilliseconds));
        ASSERT_TRUE(QTest::qWaitFor([this] { return isServed(); }, kMilliseconds));
    }
    bool isServed() const { return m_bus->interface()->isServiceRegistered(host::kPortalService); }

    QDBusObjectPath newHandle()
    {
        return QDBusObjectPath(QString("/org/freedesktop/portal/desktop/request/1_1/t%1").arg(++m_handles));
    }
    QDBusPendingCall call(const QDBusConnection &bus, const char *method, const QVariantList &arguments) const
    {
        auto message = QDBusMessage::createMethodCall(host::kPortalService, host::kPortalPath, kPrint, method);
        message.setArguments(arguments);
        return bus.asyncCall(message, std::numeric_limits<int>::max());
    }
    QDBusPendingCall prepare(const QVariantMap &settings = {}, const QVariantMap &options = {},
                             const QString &parent = {}, const QString &application = "org.test.App")
    {
        return call(
            *m_bus, "PreparePrint",
            {QVariant::fromValue(newHandle()), application, parent, "&Print…", settings, QVariantMap(), options});
    }
    QDBusPendingCall print(int document, const QVariant &token, const QString &title = "Invoice 17")
    {
        return call(*m_bus, "Print",
                    {QVariant::fromValue(newHandle()), "org.test.App", "", title,
                     QVariant::fromValue(QDBusUnixFileDescriptor(document)), QVariantMap{{"token", token}}});
    }
    void takeBack(int handle) const
    {
        m_bus->send(QDBusMessage::createMethodCall(
            host::kPortalService, QString("/org/freedesktop/portal/desktop/request/1_1/t%1").arg(handle), kRequest,
            "Close"));
    }
    static Answer answerOf(const QDBusPendingCall &pending)
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return pending.isFinished(); }, kMilliseconds)) << "no answer";
        const QDBusMessage reply = pending.reply();
        if (reply.type() != QDBusMessage::ReplyMessage)
            return {reply.errorName(), 99, {}};
        return {{}, reply.arguments().value(0).toUInt(), qdbus_cast<QVariantMap>(reply.arguments().value(1))};
    }

    bool shows(const QString &role, const QString &name) const
    {
        return m_screen.waitFor("qnprint", [&](const Seen &each) { return each.role == role && each.name == name; })
            .has_value();
    }
    bool showsDialog() const { return shows("button", "Print"); }
    bool showsNothing() const
    {
        return QTest::qWaitFor([this] { return m_screen.look("qnprint").empty(); }, kMilliseconds);
    }
    /// A dialog that a person agrees to.
    Answer prepared(const QVariantMap &settings = {})
    {
        const auto pending = prepare(settings);
        EXPECT_TRUE(showsDialog());
        m_screen.press("alt+p");
        return answerOf(pending);
    }
    /// The ticket of the job that has come into the folder; empty when it does not come.
    QJsonObject ticket(const QString &name) const
    {
        QFile file(path("out/" + name + ".json"));
        if (!QTest::qWaitFor([&] { return file.exists(); }, kMilliseconds) || !file.open(QIODevice::ReadOnly))
            return {};
        return QJsonDocument::fromJson(file.readAll()).object();
    }
    QStringList printed() const { return QDir(path("out")).entryList({"*.json"}); }

    support::Screen m_screen;
    QTemporaryDir m_folder{"/tmp/qnportal-XXXXXX"};
    QProcessEnvironment m_environment;
    QStringList m_connections;
    std::unique_ptr<QDBusConnection> m_bus;
    support::Helper m_service;
    int m_handles = 0;
};

TEST_F(PortalService, AnswersWhatAPersonHasSettled)
{
    startService();
    const auto pending = prepare({{"n-copies", "2"}, {"cups-QnDensity", "D3"}, {"some-app-key", "kept"}});
    ASSERT_TRUE(showsDialog());
    EXPECT_TRUE(shows("dialog", "Print"));
    m_screen.press("alt+p");
    const Answer answer = answerOf(pending);
    EXPECT_EQ(answer.error, "");
    EXPECT_EQ(answer.response, 0U);
    EXPECT_EQ(answer.part("settings")["n-copies"], "1");
    EXPECT_EQ(answer.part("settings")["some-app-key"], "kept");
    EXPECT_EQ(answer.part("settings")["cups-PageSize"], "A4");
    EXPECT_EQ(answer.part("settings")["cups-QnDensity"], "D3");
    EXPECT_EQ(answer.part("page-setup")["PPDName"], "A4");
    EXPECT_NEAR(answer.part("page-setup")["Width"].toDouble(), 210, 0.1);
    EXPECT_NE(answer.results["token"].toUInt(), 0U);
    EXPECT_TRUE(showsNothing());
}

TEST_F(PortalService, PrintsBySettingsThatBelongToTheToken)
{
    startService();
    const Answer settled = prepared({{"n-copies", "2"}, {"print-pages", "ranges"}, {"page-ranges", "0"}});
    QFile document(kTicket);
    ASSERT_TRUE(document.open(QIODevice::ReadOnly));
    EXPECT_EQ(answerOf(print(document.handle(), settled.results["token"])).response, 0U);
    const QJsonObject job = ticket("Invoice 17");
    EXPECT_EQ(job["title"], "Invoice 17");
    EXPECT_EQ(job["copies"], 2);
    EXPECT_EQ(job["options"].toObject()["PageSize"], "A4");
}

TEST_F(PortalService, TellsThatAPersonHasCancelled)
{
    startService();
    const auto pending = prepare();
    ASSERT_TRUE(showsDialog());
    m_screen.press("Escape");
    EXPECT_EQ(answerOf(pending).response, 1U);
}

TEST_F(PortalService, ClosesTheDialogOfARequestThatIsTakenBack)
{
    startService();
    const auto pending = prepare();
    ASSERT_TRUE(showsDialog());
    takeBack(m_handles);
    EXPECT_EQ(answerOf(pending).response, 1U);
    EXPECT_TRUE(showsNothing());
    EXPECT_TRUE(QTest::qWaitFor([this] { return childrenOf(m_service.processId()).isEmpty(); }, kMilliseconds));
}

TEST_F(PortalService, ClosesADialogThatDoesNotShowYet)
{
    startService();
    const auto pending = prepare();
    takeBack(m_handles);
    EXPECT_EQ(answerOf(pending).response, 1U);
    EXPECT_TRUE(QTest::qWaitFor([this] { return childrenOf(m_service.processId()).isEmpty(); }, kMilliseconds));
}

TEST_F(PortalService, EndsADialogThatDoesNotClose)
{
    startService();
    const auto pending = prepare();
    ASSERT_TRUE(showsDialog());
    const auto children = childrenOf(m_service.processId());
    ASSERT_EQ(children.size(), 1);
    ::kill(children.first(), SIGSTOP);
    takeBack(m_handles);
    EXPECT_EQ(answerOf(pending).response, 1U);
    EXPECT_TRUE(childrenOf(m_service.processId()).isEmpty());
}

TEST_F(PortalService, ClosesARequestOnlyForWhoeverHasMadeIt)
{
    startService();
    const auto pending = prepare();
    ASSERT_TRUE(showsDialog());
    const QDBusConnection stranger = connect("stranger");
    const QDBusMessage answer = stranger.call(QDBusMessage::createMethodCall(
        host::kPortalService, "/org/freedesktop/portal/desktop/request/1_1/t1", kRequest, "Close"));
    EXPECT_EQ(answer.errorName(), "org.freedesktop.DBus.Error.AccessDenied");
    EXPECT_FALSE(pending.isFinished());
    takeBack(m_handles);
    EXPECT_EQ(answerOf(pending).response, 1U);
}

TEST_F(PortalService, ClosesTheDialogOfACallerThatHasGone)
{
    startService();
    {
        const QDBusConnection caller = connect("caller");
        call(caller, "PreparePrint",
             {QVariant::fromValue(newHandle()), "", "", "Print", QVariantMap(), QVariantMap(), QVariantMap()});
        ASSERT_TRUE(showsDialog());
    }
    QDBusConnection::disconnectFromBus("caller");
    EXPECT_TRUE(showsNothing());
    EXPECT_TRUE(isServed());
}

TEST_F(PortalService, OutlivesADialogThatIsKilled)
{
    startService();
    const auto pending = prepare();
    ASSERT_TRUE(showsDialog());
    const auto children = childrenOf(m_service.processId());
    ASSERT_EQ(children.size(), 1);
    ::kill(children.first(), SIGKILL);
    EXPECT_EQ(answerOf(pending).response, 2U);
    EXPECT_EQ(prepared().response, 0U);
}

struct EndRow
{
    const char *name;
    int signal;
};
void PrintTo(const EndRow &row, std::ostream *out) { *out << row.name; }

class EndOfTheService : public PortalService, public testing::WithParamInterface<EndRow>
{};

TEST_P(EndOfTheService, TakesTheDialogsAlong)
{
    startService();
    prepare();
    ASSERT_TRUE(showsDialog());
    const auto children = childrenOf(m_service.processId());
    ::kill(static_cast<pid_t>(m_service.processId()), GetParam().signal);
    ASSERT_TRUE(m_service.waitForFinished(kMilliseconds));
    EXPECT_TRUE(showsNothing());
    for (const pid_t child : children)
        EXPECT_TRUE(QTest::qWaitFor([child] { return ::kill(child, 0) != 0; }, kMilliseconds));
}

TEST_P(EndOfTheService, LosesNoJob)
{
    startService();
    const Answer settled = prepared();
    int ends[2];
    ASSERT_EQ(::pipe2(ends, O_CLOEXEC), 0);
    Descriptor from(ends[0]);
    Descriptor to(ends[1]);
    print(from.number(), settled.results["token"]);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !childrenOf(m_service.processId()).isEmpty(); }, kMilliseconds));
    from.close();
    ::kill(static_cast<pid_t>(m_service.processId()), GetParam().signal);
    QTest::qWait(300);
    QFile ticketFile(kTicket);
    ASSERT_TRUE(ticketFile.open(QIODevice::ReadOnly));
    const QByteArray bytes = ticketFile.readAll();
    ASSERT_EQ(::write(to.number(), bytes.constData(), static_cast<std::size_t>(bytes.size())), bytes.size());
    to.close();
    EXPECT_EQ(ticket("Invoice 17")["title"], "Invoice 17");
    EXPECT_TRUE(m_service.state() == QProcess::NotRunning || m_service.waitForFinished(kMilliseconds));
}

INSTANTIATE_TEST_SUITE_P(By, EndOfTheService, testing::Values(EndRow{"ARequest", SIGTERM}, EndRow{"ACrash", SIGKILL}),
                         [](const auto &row) { return std::string(row.param.name); });

TEST_F(PortalService, PrintsForAnApplicationThatEndsAtOnce)
{
    startService();
    const Answer settled = prepared();
    QFile document(kTicket);
    ASSERT_TRUE(document.open(QIODevice::ReadOnly));
    const auto pending = print(document.handle(), settled.results["token"]);
    takeBack(m_handles);
    EXPECT_EQ(answerOf(pending).response, 0U);
    EXPECT_EQ(printed(), QStringList{"Invoice 17.json"});
}

TEST_F(PortalService, PrintsForACallerThatHasGone)
{
    startService();
    const Answer settled = prepared();
    QFile document(kTicket);
    ASSERT_TRUE(document.open(QIODevice::ReadOnly));
    {
        const QDBusConnection caller = connect("caller");
        const auto pending = call(caller, "Print",
                                  {QVariant::fromValue(newHandle()), "", "", "Invoice 18",
                                   QVariant::fromValue(QDBusUnixFileDescriptor(document.handle())),
                                   QVariantMap{{"token", settled.results["token"]}}});
        QTest::qWait(50);
    }
    QDBusConnection::disconnectFromBus("caller");
    EXPECT_EQ(ticket("Invoice 18")["title"], "Invoice 18");
}

TEST_F(PortalService, ShowsTheWholeDialogForATokenThatItDoesNotKnow)
{
    startService();
    QFile document(kTicket);
    ASSERT_TRUE(document.open(QIODevice::ReadOnly));
    const auto pending = print(document.handle(), 12345U);
    ASSERT_TRUE(shows("dialog", "Print Invoice 17"));
    ASSERT_TRUE(showsDialog());
    takeBack(m_handles); // the application has ended; its document is here still
    EXPECT_TRUE(showsDialog());
    m_screen.press("alt+p");
    EXPECT_EQ(answerOf(pending).response, 0U);
    EXPECT_EQ(printed(), QStringList{"Invoice 17.json"});
}

TEST_F(PortalService, TakesATokenOnce)
{
    startService();
    const Answer settled = prepared();
    QFile document(kTicket);
    ASSERT_TRUE(document.open(QIODevice::ReadOnly));
    EXPECT_EQ(answerOf(print(document.handle(), settled.results["token"])).response, 0U);
    const auto again = print(document.handle(), settled.results["token"], "Invoice 18");
    EXPECT_TRUE(shows("dialog", "Print Invoice 18"));
    m_screen.press("Escape");
    EXPECT_EQ(answerOf(again).response, 1U);
}

TEST_F(PortalService, ShowsThePagesToAPersonWhoWantsToSeeThem)
{
    startService();
    const auto pending = prepare();
    ASSERT_TRUE(showsDialog());
    m_screen.press("alt+l");
    m_screen.press("alt+p");
    const Answer settled = answerOf(pending);
    QFile document(kTicket);
    ASSERT_TRUE(document.open(QIODevice::ReadOnly));
    const auto job = print(document.handle(), settled.results["token"]);
    EXPECT_TRUE(shows("dialog", "Print Invoice 17"));
    EXPECT_TRUE(showsDialog());
    m_screen.press("alt+p");
    EXPECT_EQ(answerOf(job).response, 0U);
    EXPECT_EQ(printed(), QStringList{"Invoice 17.json"});
}

TEST_F(PortalService, GivesAJobWithoutATitleTheDocumentsOwn)
{
    startService();
    const Answer settled = prepared();
    QFile document(kTicket);
    ASSERT_TRUE(document.open(QIODevice::ReadOnly));
    QByteArray pdf = document.readAll();
    const qsizetype trailer = pdf.lastIndexOf("trailer\n<<");
    ASSERT_GT(trailer, 0);
    pdf.insert(trailer + 10, " /Info << /Title (Order 4711) >> ");
    QFile titled(path("titled.pdf"));
    ASSERT_TRUE(titled.open(QIODevice::ReadWrite) && titled.write(pdf) == pdf.size() && titled.seek(0));
    EXPECT_EQ(answerOf(print(titled.handle(), settled.results["token"], "Print…")).response, 0U);
    EXPECT_EQ(ticket("Order 4711")["title"], "Order 4711");
}

TEST_F(PortalService, GivesAJobWithoutAnyTitleThatOfTheApplication)
{
    startService();
    const Answer settled = prepared();
    QFile document(kTicket);
    ASSERT_TRUE(document.open(QIODevice::ReadOnly));
    EXPECT_EQ(answerOf(print(document.handle(), settled.results["token"], "")).response, 0U);
    ASSERT_EQ(printed().size(), 1);
    EXPECT_EQ(ticket(QFileInfo(printed().first()).completeBaseName())["title"], "org.test.App");
}

struct DocumentRow
{
    const char *name;
    QByteArray content;
    const char *sentence;
};
void PrintTo(const DocumentRow &row, std::ostream *out) { *out << row.name; }

class BadDocument : public PortalService, public testing::WithParamInterface<DocumentRow>
{};

// The application has gone on, and nobody else tells.
TEST_P(BadDocument, IsToldByAWindowOfOurs)
{
    startService();
    const Answer settled = prepared();
    QFile document(path("document"));
    ASSERT_TRUE(document.open(QIODevice::ReadWrite) &&
                document.write(GetParam().content) == GetParam().content.size() && document.seek(0));
    const auto job = print(document.handle(), settled.results["token"]);
    EXPECT_TRUE(
        m_screen
            .waitFor("qnprint",
                     [](const Seen &each) { return each.role == "label" && each.name.contains(GetParam().sentence); })
            .has_value());
    m_screen.press("Escape");
    EXPECT_EQ(answerOf(job).response, 1U);
    EXPECT_EQ(printed(), QStringList());
}

INSTANTIATE_TEST_SUITE_P(Rows, BadDocument,
                         testing::Values(DocumentRow{"Empty", {}, "the document is empty"},
                                         DocumentRow{"NoDocument", QByteArray("\0\1\2\3", 4),
                                                     "can't be printed as it is"},
                                         DocumentRow{"Broken", "%PDF-1.4\nbroken", "damaged"}),
                         [](const auto &row) { return std::string(row.param.name); });

TEST_F(PortalService, TellsOfADocumentThatCantBeRead)
{
    startService();
    const Answer settled = prepared();
    const Descriptor writeOnly(
        ::open(path("document").toLocal8Bit().constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    const auto job = print(writeOnly.number(), settled.results["token"]);
    EXPECT_TRUE(shows("dialog", "A Document Was Not Printed"));
    m_screen.press("Escape");
    EXPECT_EQ(answerOf(job).response, 1U);
}

TEST_F(PortalService, EndsReadingADocumentWithoutEnd)
{
    constexpr rlim_t kMegabyte = 1 << 20;
    startService(kMegabyte);
    const Answer settled = prepared();
    support::Helper endless;
    endless.start("yes", QStringList());
    ASSERT_TRUE(endless.waitForStarted(kMilliseconds));
    const Descriptor out(
        ::open(QString("/proc/%1/fd/1").arg(endless.processId()).toLatin1().constData(), O_RDONLY | O_CLOEXEC));
    ASSERT_GE(out.number(), 0);
    const auto job = print(out.number(), settled.results["token"]);
    EXPECT_TRUE(shows("dialog", "A Document Was Not Printed"));
    m_screen.press("Escape");
    EXPECT_EQ(answerOf(job).response, 1U);
    endless.kill();
    endless.waitForFinished();
}

struct ValueRow
{
    const char *name;
    QVariantMap settings;
    QVariantMap options;
    QString parent;
};
void PrintTo(const ValueRow &row, std::ostream *out) { *out << row.name; }

class OddRequest : public PortalService, public testing::WithParamInterface<ValueRow>
{};

TEST_P(OddRequest, GetsADialogAsAnyOther)
{
    startService();
    const auto pending = prepare(GetParam().settings, GetParam().options, GetParam().parent);
    EXPECT_TRUE(showsDialog());
    m_screen.press("alt+p");
    const Answer answer = answerOf(pending);
    EXPECT_EQ(answer.error, "");
    EXPECT_EQ(answer.response, 0U);
}

QVariantMap manySettings()
{
    QVariantMap many;
    for (int i = 0; i < 20000; ++i)
        many[QString("key-%1").arg(i)] = QString("value");
    return many;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, OddRequest,
    testing::Values(ValueRow{"NumberForCopies", {{"n-copies", 2}}, {}, ""},
                    ValueRow{"ListForPrinter", {{"printer", QStringList{"a"}}}, {}, ""},
                    ValueRow{"NoSuchChoice", {{"cups-QnDensity", "NoSuch"}, {"cups-PageSize", "NoSuch"}}, {}, ""},
                    ValueRow{"NoSuchOption", {{"cups-NoSuchOption", "1"}}, {}, ""},
                    ValueRow{"LongKeys", {{QString(100000, 'k'), QString(100000, 'v')}}, {}, ""},
                    ValueRow{"ManyKeys", manySettings(), {}, ""}, ValueRow{"TextForModal", {}, {{"modal", "yes"}}, ""},
                    ValueRow{"NumberForLabel", {}, {{"accept_label", 7}}, ""},
                    ValueRow{"ParentThatIsNone", {}, {}, "x11:deadbeef"}, ValueRow{"ParentOfZero", {}, {}, "x11:0"},
                    ValueRow{"ParentThatIsNoNumber", {}, {}, "x11:window"},
                    ValueRow{"ParentTooLarge", {}, {}, "x11:fffffffffffffff"},
                    ValueRow{"ParentElsewhere", {}, {}, "wayland:handle"},
                    ValueRow{"ParentWithoutEnd", {}, {}, QString(100000, 'x')}),
    [](const auto &row) { return std::string(row.param.name); });

TEST_F(PortalService, RefusesArgumentsOfOtherTypes)
{
    startService();
    EXPECT_NE(answerOf(call(*m_bus, "PreparePrint", {"handle", 1, 2})).error, "");
    EXPECT_NE(answerOf(call(*m_bus, "Print", {QVariant::fromValue(newHandle()), "", "", "", 7, QVariantMap()})).error,
              "");
    EXPECT_TRUE(isServed());
    EXPECT_EQ(prepared().response, 0U);
}

TEST_F(PortalService, RefusesAHandleThatIsInUse)
{
    startService();
    const auto first = prepare();
    ASSERT_TRUE(showsDialog());
    --m_handles;
    EXPECT_EQ(answerOf(prepare()).error, "org.freedesktop.DBus.Error.InvalidArgs");
    EXPECT_FALSE(first.isFinished());
}

TEST_F(PortalService, HasALimitForEachApplication)
{
    constexpr int kMost = 12;
    startService();
    QList<QDBusPendingCall> open;
    for (int i = 0; i < kMost; ++i)
        open.append(prepare());
    EXPECT_EQ(answerOf(prepare()).error, "org.freedesktop.DBus.Error.LimitsExceeded");
    const auto ofAnother = prepare({}, {}, {}, "org.test.Another");
    const int last = m_handles;
    QTest::qWait(100);
    EXPECT_FALSE(ofAnother.isFinished());
    for (int i = 1; i <= last; ++i)
        takeBack(i);
    for (const auto &each : open)
        EXPECT_EQ(answerOf(each).response, 1U);
}

/// What a process has of a thing, by its own word: "VmRSS" in kB.
int statusOf(qint64 process, const QByteArray &what)
{
    QFile file(QString("/proc/%1/status").arg(process));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : file.readAll().split('\n'))
        if (line.startsWith(what + ':'))
            return line.mid(what.size() + 1).trimmed().split(' ').first().toInt();
    return -1;
}

TEST_F(PortalService, IsAsSmallAfterManyRequestsAsBefore)
{
    constexpr int kAtOnce = 8;
    constexpr int kRounds = 25;
    startService();
    const auto descriptors = [this] {
        return QDir(QString("/proc/%1/fd").arg(m_service.processId()))
            .entryList(QDir::NoDotAndDotDot | QDir::AllEntries)
            .size();
    };
    const auto round = [this] {
        QList<QDBusPendingCall> open;
        const int first = m_handles + 1;
        for (int i = 0; i < kAtOnce; ++i)
            open.append(prepare());
        QTest::qWait(20);
        for (int i = first; i <= m_handles; ++i)
            takeBack(i);
        for (const auto &each : open)
            ASSERT_EQ(answerOf(each).response, 1U);
    };
    round(); // the first makes what stays
    const auto before = descriptors();
    const int memory = statusOf(m_service.processId(), "VmRSS");
    for (int i = 0; i < kRounds; ++i)
        round();
    EXPECT_EQ(descriptors(), before);
    constexpr int kMost =
        foundation::kHasShadow ? 65536 : 1024; // kB; with a shadow, what was freed is kept for a while
    EXPECT_LT(statusOf(m_service.processId(), "VmRSS"), memory + kMost);
    EXPECT_TRUE(childrenOf(m_service.processId()).isEmpty());
}

/// The desktop's own back end, as far as it is called.
class Others : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Print")

public Q_SLOTS:
    Q_SCRIPTABLE uint PreparePrint(const QDBusObjectPath &handle, const QString &application, const QString &parent,
                                   const QString &title, const QVariantMap &settings, const QVariantMap &,
                                   const QVariantMap &, QVariantMap &results)
    {
        m_calls.append("PreparePrint " + application + ' ' + parent + ' ' + title + ' ' + settings["key"].toString());
        m_handle = handle.path();
        if (m_isSlow) {
            setDelayedReply(true);
            m_pending = message();
        }
        results = {{"settings", QVariantMap{{"of", "others"}}},
                   {"page-setup", QVariantMap{{"PPDName", "Letter"}}},
                   {"token", 77U}};
        return 0;
    }
    Q_SCRIPTABLE uint Print(const QDBusObjectPath &, const QString &, const QString &, const QString &title,
                            const QDBusUnixFileDescriptor &document, const QVariantMap &options, QVariantMap &)
    {
        QFile file;
        const bool isOpen = file.open(document.fileDescriptor(), QIODevice::ReadOnly);
        m_calls.append("Print " + title + ' ' + options["token"].toString() + ' ' +
                       (isOpen ? file.readAll() : QByteArray()).left(4));
        return 0;
    }

public:
    QStringList m_calls;
    QString m_handle;
    QDBusMessage m_pending;
    bool m_isSlow = false;
};

class OthersRequest : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Request")

public Q_SLOTS:
    Q_SCRIPTABLE void Close() { m_isClosed = true; }

public:
    bool m_isClosed = false;
};

class HandOver : public PortalService
{
protected:
    void SetUp() override
    {
        PortalService::SetUp();
        QFile portal(path("portals/others.portal"));
        ASSERT_TRUE(portal.open(QIODevice::WriteOnly));
        portal.write(QByteArray("[portal]\nDBusName=") + kOthersName +
                     "\nInterfaces=org.freedesktop.impl.portal.Print;\nUseIn=test\n");
        m_environment.insert("XDG_CURRENT_DESKTOP", "test");
    }
    void startOthers()
    {
        m_othersBus = std::make_unique<QDBusConnection>(connect("others"));
        ASSERT_TRUE(m_othersBus->registerObject(host::kPortalPath, &m_others, QDBusConnection::ExportScriptableSlots));
        ASSERT_TRUE(m_othersBus->registerService(kOthersName));
    }

    /// A request that the others have, and have heard that nobody wants any more; they have not answered yet.
    QDBusPendingCall handOverAndTakeBack()
    {
        startOthers();
        m_others.m_isSlow = true;
        startService();
        auto pending = prepare();
        EXPECT_TRUE(showsDialog());
        m_screen.press("alt+o");
        EXPECT_TRUE(QTest::qWaitFor([this] { return !m_others.m_handle.isEmpty(); }, kMilliseconds));
        OthersRequest request;
        EXPECT_TRUE(m_othersBus->registerObject(m_others.m_handle, &request, QDBusConnection::ExportScriptableSlots));
        takeBack(m_handles);
        EXPECT_TRUE(QTest::qWaitFor([&] { return request.m_isClosed; }, kMilliseconds));
        return pending;
    }

    Others m_others;
    std::unique_ptr<QDBusConnection> m_othersBus;
};

TEST_F(HandOver, BringsTheOtherDialogAndLaterItsDocument)
{
    startOthers();
    startService();
    const auto pending = prepare({{"key", "value"}}, {}, "x11:1");
    ASSERT_TRUE(showsDialog());
    m_screen.press("alt+o");
    const Answer answer = answerOf(pending);
    EXPECT_EQ(answer.response, 0U);
    EXPECT_EQ(m_others.m_calls, QStringList{"PreparePrint org.test.App x11:1 &Print… value"});
    EXPECT_EQ(answer.part("settings"), (QVariantMap{{"of", "others"}}));
    EXPECT_EQ(answer.part("page-setup"), (QVariantMap{{"PPDName", "Letter"}}));
    QFile document(kTicket);
    ASSERT_TRUE(document.open(QIODevice::ReadOnly));
    EXPECT_EQ(answerOf(print(document.handle(), answer.results["token"])).response, 0U);
    EXPECT_EQ(m_others.m_calls.value(1), "Print Invoice 17 77 %PDF");
    EXPECT_EQ(printed(), QStringList());
}

TEST_F(HandOver, IsTakenBackWhereItHasGone)
{
    const auto pending = handOverAndTakeBack();
    m_othersBus->send(m_others.m_pending.createReply({2U, QVariantMap()}));
    EXPECT_EQ(answerOf(pending).response, 2U);
}

TEST_F(HandOver, DoesNotComeBackWhenNobodyWantsItAnyMore)
{
    const auto pending = handOverAndTakeBack();
    m_othersBus->send(m_others.m_pending.createErrorReply(QDBusError::Failed, "taken back"));
    EXPECT_EQ(answerOf(pending).response, 1U);
    EXPECT_TRUE(showsNothing());
}

TEST_F(HandOver, ComesBackWhenNobodyIsThere)
{
    startService(); // and no others
    const auto pending = prepare();
    ASSERT_TRUE(showsDialog());
    m_screen.press("alt+o");
    ASSERT_TRUE(showsDialog());
    m_screen.press("alt+p");
    EXPECT_EQ(answerOf(pending).response, 0U);
}

TEST_F(HandOver, IsNotTakenBackWhereNobodyWasThere)
{
    startService();
    const auto pending = prepare();
    ASSERT_TRUE(showsDialog());
    const auto before = childrenOf(m_service.processId());
    const auto isAnother = [&] {
        const auto now = childrenOf(m_service.processId());
        return now.size() == 1 && now != before;
    };
    m_screen.press("alt+o");
    ASSERT_TRUE(QTest::qWaitFor(isAnother, kMilliseconds));
    ASSERT_TRUE(showsDialog());
    startOthers(); // who know nothing of it
    OthersRequest request;
    ASSERT_TRUE(m_othersBus->registerObject(QString("/org/freedesktop/portal/desktop/request/1_1/t%1").arg(m_handles),
                                            &request, QDBusConnection::ExportScriptableSlots));
    takeBack(m_handles);
    EXPECT_EQ(answerOf(pending).response, 1U);
    QTest::qWait(100);
    EXPECT_FALSE(request.m_isClosed);
}

TEST_F(HandOver, IsNotOfferedWithoutAnotherDialog)
{
    QFile::remove(path("portals/others.portal"));
    startService();
    const auto pending = prepare();
    ASSERT_TRUE(showsDialog());
    EXPECT_FALSE(m_screen.waitFor(
                             "qnprint", [](const Seen &each) { return each.name.contains("Other Printers"); }, 500)
                     .has_value());
}

TEST_F(PortalService, EndsWithItsBus)
{
    support::Helper bus;
    bus.start("dbus-daemon", {"--session", "--nofork", "--print-address=1"});
    ASSERT_TRUE(bus.waitForStarted(kMilliseconds) && bus.waitForReadyRead(kMilliseconds));
    m_environment.insert("DBUS_SESSION_BUS_ADDRESS", QString::fromLatin1(bus.readLine().trimmed()));
    *m_bus = connect("short-lived");
    startService();
    prepare();
    ASSERT_TRUE(QTest::qWaitFor([this] { return childrenOf(m_service.processId()).size() == 1; }, kMilliseconds));
    const pid_t dialog = childrenOf(m_service.processId()).first();
    bus.kill();
    EXPECT_TRUE(bus.waitForFinished(kMilliseconds));
    EXPECT_TRUE(m_service.waitForFinished(kMilliseconds));
    EXPECT_TRUE(QTest::qWaitFor([dialog] { return ::kill(dialog, 0) != 0; }, kMilliseconds));
}

TEST_F(PortalService, KeepsItsNumbersFromOneLifeToTheNext)
{
    startService();
    const Answer settled = prepared();
    m_service.terminate();
    ASSERT_TRUE(m_service.waitForFinished(kMilliseconds));
    startService();
    QFile document(kTicket);
    ASSERT_TRUE(document.open(QIODevice::ReadOnly));
    const auto job = print(document.handle(), settled.results["token"]);
    EXPECT_TRUE(
        shows("dialog", "Print Invoice 17")); // what was settled is forgotten, and nobody else's is taken for it
    m_screen.press("Escape");
    EXPECT_EQ(answerOf(job).response, 1U);
}

TEST_F(PortalService, EndsWhenNobodyNeedsIt)
{
    host::PrintPortal portal(connect("idle"), {{}, {}, {}, {}, std::chrono::milliseconds(50)});
    bool isDone = false;
    QObject::connect(&portal, &host::PrintPortal::done, [&] { isDone = true; });
    ASSERT_TRUE(portal.begin());
    EXPECT_TRUE(QTest::qWaitFor([&] { return isDone; }, kMilliseconds));
    EXPECT_FALSE(isServed());
}

TEST_F(PortalService, IsThereOnlyOnce)
{
    startService();
    host::PrintPortal portal(connect("second"), {{}, {}, {}, {}});
    EXPECT_FALSE(portal.begin());
}

} // namespace

#include "PortalServiceTest.moc"
