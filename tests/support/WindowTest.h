// A test with the dialog's window in its hands.
#pragma once

#include "Print.h"
#include "Window/DialogWindow.h"
#include "Window/PaperChooser.h"

#include <QApplication>
#include <QComboBox>
#include <QPushButton>

#include <gtest/gtest.h>

#include <memory>

namespace support {

class WindowTest : public testing::Test
{
protected:
    template <class Widget>
    Widget *find(const QString &name = {})
    {
        return m_window->findChild<Widget *>(name);
    }
    QPushButton *button(const QString &text)
    {
        for (auto *each : m_window->findChildren<QPushButton *>())
            if (each->text() == text)
                return each;
        return nullptr;
    }
    void choosePaper(const QString &name)
    {
        auto *const papers = find<host::PaperChooser>()->menu();
        papers->setCurrentIndex(papers->findData(name));
        Q_EMIT papers->activated(papers->currentIndex());
        QApplication::processEvents();
    }

    std::unique_ptr<host::DialogWindow> m_window;
};

} // namespace support
