// The dialog as tests use it: the real host, the real bundle, the real PPD library, driven through `qnprint script`'s
// own requests, in the words of the product.
#pragma once

#include "PPDText.h"
#include "Print.h"

#include "Foundation/UserDefaults.h"
#include "Script/Script.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QPointF>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

namespace support {

using Marks = std::vector<std::pair<QString, QString>>;

class Dialog
{
public:
    Dialog();
    ~Dialog();

    /// Any request; the reply is kept as `reply()`.
    QJsonObject request(const QJsonObject &request);
    const QJsonObject &reply() const { return m_reply; }
    QString error() const { return m_reply["error"].toString(); }

    // Requests that must succeed; the test fails otherwise.

    /// `more`: further members of `open`. Metric, unless the members say another locale.
    void open(const PPDText &ppd, const QString &paper = "A4", QJsonObject more = {});
    void openFile(const QString &path, const QJsonObject &more = {});
    void show(const QString &panel); // and makes it the panel of what follows
    void pick(const QString &control, int index);
    QJsonArray menu(const QString &control);
    void click(const QString &control);
    void row(const QString &control, int row);
    void type(const QString &text, const QString &control = "mPaperFeedTxt");
    void enter(const QString &control = "mPaperFeedTxt");
    void step(int by, const QString &control = "mPaperFeedStepper");
    void choosePaper(const QString &name);
    void choosePaper(const QString &name, double width, double height);
    bool mark(const QString &key, const QString &choice);
    bool print();
    QJsonObject summary(const QString &panel);
    QJsonObject job();

    // What the last request did.
    Marks marks() const;
    /// The choices that it marked under a key, in order.
    QStringList marksOf(const QString &key) const;
    int alerts() const { return static_cast<int>(m_reply["alerts"].toArray().size()); }
    QJsonObject alert(int index = 0) const { return m_reply["alerts"].toArray()[index].toObject(); }

    // What is the case now.
    QJsonObject state(const QString &panel) const;
    QJsonObject control(const QString &name) const; // of the panel shown last
    QString text(const QString &control) const { return this->control(control)["text"].toString(); }
    int selected(const QString &control) const { return this->control(control)["selected"].toInt(-2); }
    bool isHidden(const QString &control) const { return this->control(control)["hidden"].toBool(); }
    bool isEnabled(const QString &control) const { return this->control(control)["enabled"].toBool(); }
    bool isAttached(const QString &control) const { return this->control(control)["attached"].toBool(); }
    QStringList titles(const QString &popUp) const;
    /// One character an item: '+' available, '-' not.
    QString available(const QString &popUp) const;
    QJsonValue selection(const QString &field) const;
    QString marked(const QString &key) const;
    /// "YES", "NO", or null text for none.
    QString memo() const;

    const QString &panel() const { return m_panel; }
    void use(const QString &panel) { m_panel = panel; }

private:
    QJsonObject must(const QJsonObject &request);

    foundation::ScopedDefaults m_defaults; // outlives the script, whose end writes into it
    mutable host::Script m_script;
    QJsonObject m_reply;
    QString m_panel = "basic";
};

/// Lower left corner, from the state of a control.
QPointF originOf(const QJsonObject &control);

/// A test that talks to one dialog, and speaks of it without naming it.
class DialogTest : public testing::Test, protected Dialog
{};

} // namespace support
