// Two pictures of the same thing, laid over each other.
#pragma once

#include <QImage>

namespace host {

class PictureDifferences
{
public:
    PictureDifferences(const QImage &earlier, const QImage &now);

    /// How many dots differ; one that a picture does not reach to does.
    qsizetype dots() const { return m_dots; }
    /// The rectangle that has all of them; empty when there are none.
    QRect within() const { return m_within; }
    /// The picture of now in pale grey, and in it the dots that differ in red. As large as the larger one.
    const QImage &picture() const { return m_picture; }

private:
    qsizetype m_dots = 0;
    QRect m_within;
    QImage m_picture;
};

} // namespace host
