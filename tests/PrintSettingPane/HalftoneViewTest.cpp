// The halftone preview: which picture, and where it is drawn.
#include "HalftoneView.h"

#include "Foundation/Bundle.h"
#include "Messages.h"
#include "Results.h"

#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

const QColor kColors[]{Qt::red, Qt::green, Qt::blue};

class Preview : public testing::Test
{
protected:
    void SetUp() override
    {
        write("Info.json", R"({"executable":"none.so","principalClass":"None"})");
        ASSERT_TRUE(QDir(m_directory.path()).mkdir("Resources"));
        const char *const names[]{"Binary", "Dither", "Diffusion"};
        for (int i = 0; i < 3; ++i) {
            QImage picture(10, 6, QImage::Format_RGB32);
            picture.fill(kColors[i]);
            ASSERT_TRUE(picture.save(m_directory.filePath(QString("Resources/%1.png").arg(names[i]))));
        }
        m_radio.setRows({"a", "b", "c"});
        ASSERT_TRUE(m_matrix.connect(&m_radio));
    }
    void write(const QString &name, const QByteArray &content)
    {
        QFile file(m_directory.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    void load()
    {
        m_bundle = support::value(foundation::Bundle::open(m_directory.path(), "none"));
        ASSERT_TRUE(m_view.initWithFrame(QRect(0, 0, 20, 30), *m_bundle));
    }
    QImage drawn()
    {
        QImage image(m_view.size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        m_view.render(&image);
        return image;
    }

    QTemporaryDir m_directory;
    std::unique_ptr<foundation::Bundle> m_bundle;
    toolkit::RadioControl m_radio;
    toolkit::RadioMatrix m_matrix;
    HalftoneView_v100_ m_view;
};

TEST_F(Preview, ShowsThePictureOfTheSelectedRow)
{
    load();
    m_view.setHlftnMatrix(m_matrix);
    for (int row = 0; row < 3; ++row) {
        m_radio.select(row);
        EXPECT_EQ(m_view.halftoneCondition(), row);
        EXPECT_EQ(drawn().pixelColor(5, 25), kColors[row]) << row;
    }
}

TEST_F(Preview, ShowsTheFirstPictureWithoutAGroupAndNoneWithoutARow)
{
    load();
    EXPECT_EQ(m_view.halftoneCondition(), 0);
    EXPECT_EQ(m_view.picture(), "Binary");
    m_view.setHlftnMatrix(m_matrix);
    EXPECT_EQ(m_view.hlftnMatrix().widget(), &m_radio);
    EXPECT_EQ(m_view.halftoneCondition(), -1);
    EXPECT_EQ(m_view.targetDrawImage(), nullptr);
    EXPECT_EQ(m_view.picture(), "");
    for (int x = 0; x < 20; ++x)
        EXPECT_FALSE(std::ranges::count(kColors, drawn().pixelColor(x, 25))) << x;
}

TEST_F(Preview, DrawsNothingForARowWithoutAPicture)
{
    load();
    m_radio.setRows({"a", "b", "c", "d"});
    m_view.setHlftnMatrix(m_matrix);
    m_radio.select(3);
    EXPECT_EQ(m_view.targetDrawImage(), nullptr);
}

TEST_F(Preview, StandsOnePointRightAndAboveTheLowerLeftCornerAtItsOwnSize)
{
    load();
    const QImage image = drawn(); // 20 x 30, the picture 10 x 6
    EXPECT_FALSE(HalftoneView_v100_::isFlipped());
    EXPECT_EQ(image.pixelColor(1, 28), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(10, 23), QColor(Qt::red));
    EXPECT_NE(image.pixelColor(0, 28), QColor(Qt::red));
    EXPECT_NE(image.pixelColor(1, 29), QColor(Qt::red));
    EXPECT_NE(image.pixelColor(11, 28), QColor(Qt::red));
    EXPECT_NE(image.pixelColor(1, 22), QColor(Qt::red));
}

class UnusablePicture : public Preview, public testing::WithParamInterface<const char *>
{};

TEST_P(UnusablePicture, IsNotDrawn)
{
    write("Resources/Binary.png", GetParam());
    load();
    m_view.setHlftnMatrix(m_matrix);
    m_radio.select(0);
    EXPECT_EQ(m_view.targetDrawImage(), nullptr);
    drawn();
    m_radio.select(1);
    EXPECT_EQ(m_view.picture(), "Dither");
}

INSTANTIATE_TEST_SUITE_P(Contents, UnusablePicture, testing::Values("", "no picture", "\x89PNG\r\n\x1a\n"));

TEST_F(Preview, RefusesAPictureOfTwentyThousandPixelsASide)
{
    // Only the header of such a picture: 20,000 x 20,000 grey pixels, with its checksum.
    write("Resources/Binary.png", QByteArray::fromHex("89504e470d0a1a0a0000000d4948445200004e2000004e200800000000") +
                                      QByteArray::fromHex("c61b19e50000000049444154"));
    support::RecordMessages messages; // Qt says that it is too large
    load();
    EXPECT_EQ(m_view.targetDrawImage(), nullptr);
    m_view.setHlftnMatrix(m_matrix);
    m_radio.select(1);
    EXPECT_EQ(m_view.picture(), "Dither");
}

TEST_F(Preview, IsDescribedToThoseWhoCannotSeeIt)
{
    load();
    m_view.setHlftnMatrix(m_matrix);
    QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(&m_view);
    EXPECT_EQ(accessible->text(QAccessible::Name), "AX_HalftonePreview");
    EXPECT_EQ(accessible->text(QAccessible::Description), "AX_HalftonePreview_None");
    m_radio.select(2);
    m_view.setNeedsDisplay();
    EXPECT_EQ(accessible->text(QAccessible::Description), "AX_HalftonePreview_Diffusion");
}

} // namespace
