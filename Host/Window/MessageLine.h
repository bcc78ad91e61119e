// Where the window speaks to the person.
#pragma once

#include <QLabel>

namespace host {

/// Two lines that are always there, so that a message moves nothing; what doesn't fit ends in an ellipsis, and the tool
/// tip has the whole. What it says is announced to assistive technology.
class MessageLine : public QLabel
{
    Q_OBJECT

public:
    explicit MessageLine(QWidget *parent = nullptr);

    void say(const QString &sentences);
    /// All of it, however little shows.
    const QString &said() const { return m_said; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    bool hasRoomFor(const QString &text) const;
    void fit();

    QString m_said;
};

} // namespace host
