// The dialog as tests use it.
#include "Dialog.h"

#include <QJsonDocument>
#include <QTemporaryDir>

namespace support {

namespace {

QString emptyStore()
{
    static const QTemporaryDir directory;
    static int count = 0;
    return directory.filePath(QString("defaults%1.ini").arg(++count));
}

} // namespace

Dialog::Dialog()
    : m_defaults(emptyStore())
{}

Dialog::~Dialog() = default;

QJsonObject Dialog::request(const QJsonObject &request)
{
    const auto reply = m_script.reply(QJsonDocument(request).toJson(QJsonDocument::Compact));
    m_reply = QJsonDocument::fromJson(reply.value_or(QByteArray())).object();
    return m_reply;
}

QJsonObject Dialog::must(const QJsonObject &asked)
{
    request(asked);
    EXPECT_TRUE(m_reply["ok"].toBool()) << QJsonDocument(asked).toJson(QJsonDocument::Compact).toStdString() << ": "
                                        << error().toStdString();
    return m_reply;
}

void Dialog::open(const PPDText &ppd, const QString &paper, QJsonObject more)
{
    more["paper"] = paper;
    openFile(ppd.file(), more);
}

void Dialog::openFile(const QString &path, const QJsonObject &more)
{
    QJsonObject asked{{"do", "open"}, {"ppd", path}, {"locale", "de_DE"}, {"language", "none"}};
    for (auto member = more.begin(); member != more.end(); ++member)
        asked[member.key()] = member.value();
    must(asked);
}

void Dialog::show(const QString &panel)
{
    m_panel = panel;
    must({{"do", "show"}, {"panel", panel}});
}

void Dialog::pick(const QString &control, int index)
{
    must({{"do", "pick"}, {"panel", m_panel}, {"control", control}, {"index", index}});
}

QJsonArray Dialog::menu(const QString &control)
{
    return must({{"do", "menu"}, {"panel", m_panel}, {"control", control}})["items"].toArray();
}

void Dialog::click(const QString &control) { must({{"do", "click"}, {"panel", m_panel}, {"control", control}}); }

void Dialog::row(const QString &control, int row)
{
    must({{"do", "row"}, {"panel", m_panel}, {"control", control}, {"row", row}});
}

void Dialog::type(const QString &text, const QString &control)
{
    must({{"do", "type"}, {"panel", m_panel}, {"control", control}, {"text", text}});
}

void Dialog::enter(const QString &control) { must({{"do", "enter"}, {"panel", m_panel}, {"control", control}}); }

void Dialog::step(int by, const QString &control)
{
    must({{"do", "step"}, {"panel", m_panel}, {"control", control}, {"by", by}});
}

void Dialog::choosePaper(const QString &name) { must({{"do", "paper"}, {"name", name}}); }

void Dialog::choosePaper(const QString &name, double width, double height)
{
    must({{"do", "paper"}, {"name", name}, {"width", width}, {"height", height}});
}

bool Dialog::mark(const QString &key, const QString &choice)
{
    return must({{"do", "mark"}, {"key", key}, {"choice", choice}})["result"].toBool();
}

bool Dialog::print() { return must({{"do", "print"}})["result"].toBool(); }

QJsonObject Dialog::summary(const QString &panel)
{
    return must({{"do", "summary"}, {"panel", panel}})["result"].toObject();
}

QJsonObject Dialog::job() { return must({{"do", "job"}})["options"].toObject(); }

Marks Dialog::marks() const
{
    Marks result;
    for (const auto &pair : m_reply["marks"].toArray())
        result.emplace_back(pair.toArray()[0].toString(), pair.toArray()[1].toString());
    return result;
}

QStringList Dialog::marksOf(const QString &key) const
{
    QStringList choices;
    for (const auto &[marked, choice] : marks())
        if (marked == key)
            choices.append(choice);
    return choices;
}

QJsonObject Dialog::state(const QString &panel) const
{
    const QJsonObject asked{{"do", "state"}, {"panel", panel}};
    const auto reply = m_script.reply(QJsonDocument(asked).toJson(QJsonDocument::Compact));
    return QJsonDocument::fromJson(reply.value_or(QByteArray())).object();
}

QJsonObject Dialog::control(const QString &name) const
{
    const QJsonObject controls = state(m_panel)["panels"][m_panel]["controls"].toObject();
    EXPECT_TRUE(controls.contains(name)) << name.toStdString() << " is no control of the panel "
                                         << m_panel.toStdString();
    return controls[name].toObject();
}

QStringList Dialog::titles(const QString &popUp) const
{
    QStringList titles;
    for (const auto &item : control(popUp)["items"].toArray())
        titles.append(item.toObject()["title"].toString());
    return titles;
}

QString Dialog::available(const QString &popUp) const
{
    QString result;
    for (const auto &item : control(popUp)["items"].toArray())
        result += item.toObject()["enabled"].toBool() ? '+' : '-';
    return result;
}

QJsonValue Dialog::selection(const QString &field) const
{
    return state(m_panel)["panels"][m_panel]["selections"].toObject()[field];
}

QString Dialog::marked(const QString &key) const { return state(m_panel)["marked"].toObject()[key].toString(); }

QString Dialog::memo() const { return state(m_panel)["defaults"].toObject()["QnPerforated"].toString(); }

QPointF originOf(const QJsonObject &control)
{
    const QJsonArray point = control["origin"].toArray();
    return {point[0].toDouble(), point[1].toDouble()};
}

} // namespace support
