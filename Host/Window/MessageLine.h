// Where the window speaks to the person.
#pragma once

#include <QLabel>

namespace host {

/// What a person is to hear of as well as to see: assistive technology announces it when it shows, and when it changes.
class AnnouncedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit AnnouncedLabel(QWidget *parent = nullptr);

    void say(const QString &sentences);
    const QString &said() const { return m_said; }

protected:
    virtual void fit() { setText(m_said); }

private:
    QString m_said;
};

/// Two lines that are always there, so that a message moves nothing; what doesn't fit ends in an ellipsis, and the tool
/// tip has the whole.
class MessageLine : public AnnouncedLabel
{
    Q_OBJECT

public:
    explicit MessageLine(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void fit() override;

private:
    bool hasRoomFor(const QString &text) const;
};

} // namespace host
