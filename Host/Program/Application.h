// The application of a face: on a display or without one, and what of the command line is Qt's own.
#pragma once

#include "Usage.h"

#include <QByteArrayList>
#include <QStringList>

#include <memory>
#include <vector>

class QApplication;

namespace host {

/// A command line without the name of the program.
struct Arguments
{
    QStringList ours;
    QStringList ofQt; // "-platform", "xcb"
};

/// What stands behind "--" is ours, and so is `--title`, which Qt would take from us on some displays.
Arguments partArguments(const QStringList &all);

class Application
{
public:
    /// The window needs a display: where none can be opened the program ends with one sentence. The other faces have
    /// none, whatever the environment says.
    Application(Face face, const QStringList &ofQt);
    ~Application();
    Application(const Application &) = delete;
    Application &operator=(const Application &) = delete;

private:
    // Qt keeps pointers into all of these.
    QByteArrayList m_words;
    std::vector<char *> m_argv;
    int m_argc;
    std::unique_ptr<QApplication> m_application;
};

} // namespace host
