// A test with the dialog's window in its hands, on queues of a real CUPS server.
#pragma once

#include "CupsServer.h"
#include "WindowTest.h"

#include "Toolkit/Controls.h"

#include <QSignalSpy>

namespace support {

class QueueWindow : public support::WindowTest
{
protected:
    /// In milliseconds. A long text takes a quarter of that under the sanitizers.
    static constexpr int kPatience = 60'000;

    void SetUp() override
    {
        startServer();
        ASSERT_TRUE(m_server.addQueue("counter", "usb://Qn/Thermal?serial=1"));
    }
    void startServer(const CupsServer::Setup &setup = {})
    {
        const auto problem = m_server.start(setup);
        ASSERT_FALSE(problem) << problem->toStdString();
        m_server.adoptEnvironment();
        setUp(m_server.path("defaults.ini"));
    }
    void open(const QString &queue = "counter", const QString &file = kTicket)
    {
        host::PrintRequest request;
        request.queue = queue;
        request.options = m_asked;
        request.failedQueue = m_failedQueue;
        request.prefersLastPrinter = m_prefersLast;
        makeDialog(request, file);
        ASSERT_TRUE(m_dialog->start());
        showWindow();
    }
    void openAndWait(const QString &queue = "counter")
    {
        open(queue);
        ASSERT_TRUE(waitFor([this] { return canPrint(); })) << message().toStdString();
    }
    template <class Condition>
    static bool waitFor(Condition condition)
    {
        return QTest::qWaitFor(condition, kPatience);
    }
    bool waitForMessage(const QString &part)
    {
        return waitFor([&] { return message().contains(part); });
    }
    static QStringList items(const QComboBox &box)
    {
        QStringList texts;
        for (int i = 0; i < box.count(); ++i)
            texts.append(box.itemText(i));
        return texts;
    }
    /// Down from the item that is chosen, as a person does it.
    void moveDown(const QString &popUp)
    {
        auto *const control = find<toolkit::PopUpControl>(popUp);
        QTest::keyClick(control, Qt::Key_Down);
        QApplication::processEvents();
    }
    void savePreset(const QString &name)
    {
        meetBox<host::PresetNameBox>([name](host::PresetNameBox &box) {
            box.findChild<QLineEdit *>()->setText(name);
            QTest::keyClick(&box, Qt::Key_Return);
        });
        trigger("Save as &Preset…");
    }
    /// Presses Print; whether the window then went with its job.
    bool print()
    {
        QSignalSpy printed(m_dialog.get(), &host::PrintDialog::printed);
        button("&Print")->click();
        waitFor([&] { return printed.size() == 1 || (canPrint() && !message().isEmpty()); });
        return printed.size() == 1;
    }

    CupsServer m_server;
    host::OptionValues m_asked; // on the command line
    bool m_prefersLast = false;
    QString m_failedQueue; // that another one is wanted for
};

} // namespace support
