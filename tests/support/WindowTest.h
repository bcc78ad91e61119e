// A test with the dialog's window in its hands.
#pragma once

#include "Print.h"
#include "Results.h"

#include "Dialog/PrintDialog.h"
#include "Foundation/Locale.h"
#include "Foundation/UserDefaults.h"
#include "Toolkit/Alert.h"
#include "Window/DialogWindow.h"
#include "Window/MessageLine.h"
#include "Window/PresetNameBox.h"
#include "Window/SummaryView.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace support {

inline constexpr auto kTicket = QN_SOURCE_DIR "/examples/documents/ticket.pdf";

class WindowTest : public testing::Test
{
protected:
    /// What an application remembers goes into `defaults`, a file; alerts are recorded.
    void setUp(const QString &defaults) { m_defaults = std::make_unique<foundation::ScopedDefaults>(defaults); }
    void TearDown() override
    {
        m_window.reset();
        m_dialog.reset();
    }
    /// A dialog without a printer yet; the earlier window goes first.
    void makeDialog(const host::PrintRequest &request, const QString &file = kTicket)
    {
        m_window.reset();
        m_dialog = std::make_unique<host::PrintDialog>(request, value(host::Document::open(file)));
    }
    void showWindow()
    {
        m_window = std::make_unique<host::DialogWindow>(*m_dialog);
        m_window->show();
        m_window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
        QApplication::processEvents();
    }

    /// The one that is seen, where both panels have one of that name.
    template <class Widget>
    Widget *find(const QString &name = {})
    {
        for (auto *each : m_window->findChildren<Widget *>(name))
            if (each->isVisible())
                return each;
        return m_window->findChild<Widget *>(name);
    }
    QPushButton *button(const QString &text)
    {
        for (auto *each : m_window->findChildren<QPushButton *>())
            if (each->text() == text)
                return each;
        return nullptr;
    }
    bool canPrint() { return button("&Print")->isEnabled(); }
    QComboBox *printers() { return find<QComboBox>("printers"); }
    QComboBox *presets() { return find<QComboBox>("presets"); }
    QComboBox *papers() { return find<QComboBox>("papers"); }
    QLineEdit *pages() { return find<QLineEdit>("pages"); }
    /// What the window says in the panel's place, and under it; empty when it says nothing.
    QString message()
    {
        auto *const inPlaceOfPanel = find<QLabel>("inPlaceOfPanel");
        const QString below = m_window->findChild<host::MessageLine *>()->said();
        const QStringList all{inPlaceOfPanel->isVisible() ? inPlaceOfPanel->text() : QString(), below};
        return all.filter(QRegularExpression(".")).join('\n');
    }
    const host::PPDTarget &target() const { return dynamic_cast<const host::PPDTarget &>(*m_dialog->target()); }
    const host::DialogSession &session() const { return target().session(); }
    QString marked(const QString &keyword) const { return session().marks().choiceOf(keyword); }

    /// As a person does it: opens the list, goes to the item, and takes it.
    static void choose(QComboBox &box, int index)
    {
        ASSERT_GE(index, 0);
        box.showPopup();
        box.view()->setCurrentIndex(box.model()->index(index, box.modelColumn()));
        QTest::keyClick(box.view(), Qt::Key_Return);
        ASSERT_EQ(box.currentIndex(), index);
        QApplication::processEvents();
    }
    static void choose(QComboBox &box, const QString &text) { choose(box, box.findText(text)); }
    void choosePaper(const QString &name) { choose(*papers(), papers()->findData(name)); }
    void trigger(const QString &action)
    {
        for (auto *each : button("Sa&ve")->menu()->actions())
            if (each->text() == action)
                return each->trigger();
        FAIL() << "no action " << action.toStdString();
    }

    /// "Paper=A4", as the window tells what will come out.
    QStringList summary()
    {
        if (auto *const unfold = m_window->findChild<QPushButton *>("unfold"); !unfold->isChecked())
            unfold->click();
        QStringList rows;
        const auto *const view = m_window->findChild<host::SummaryView *>();
        for (int i = 0; i < view->topLevelItemCount(); ++i)
            rows.append(view->topLevelItem(i)->text(0) + '=' + view->topLevelItem(i)->text(1));
        return rows;
    }
    /// Meets the box that opens next, while whoever opens it waits.
    template <class Box>
    void meetBox(std::function<void(Box &box)> act)
    {
        QTimer::singleShot(0, m_window.get(), [this, act = std::move(act)] {
            auto *const box = m_window->findChild<Box *>();
            ASSERT_TRUE(box);
            act(*box);
        });
    }

    QStringList m_alerts;
    std::unique_ptr<foundation::ScopedDefaults> m_defaults;
    toolkit::PresentAlerts m_presentAlerts{
        [this](const toolkit::Alert &alert) { m_alerts.append(alert.messageText()); }};
    foundation::ScopedLocale m_locale{QLocale("de_DE")};
    std::unique_ptr<host::PrintDialog> m_dialog;
    std::unique_ptr<host::DialogWindow> m_window;
};

} // namespace support
