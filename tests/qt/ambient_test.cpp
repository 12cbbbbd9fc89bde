// Palette and font of the widget are the grid's system colours and ambient font.
#include "widget_support.h"

#include "qt_ambient.h"
#include "qt_container.h"

#include <QApplication>

namespace vornix {

namespace {

QPalette Tinted()
{
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(0x11, 0x22, 0x33));
    palette.setColor(QPalette::Button, QColor(0x44, 0x55, 0x66));
    palette.setColor(QPalette::Text, QColor(0xEE, 0xDD, 0xCC));
    palette.setColor(QPalette::Highlight, QColor(0x77, 0x88, 0x99));
    return palette;
}

} // namespace

TEST(QVornixAmbientTest, ColoursComeFromThePaletteInReversedByteOrder)
{
    const SystemColors colors = SystemColorsFrom(Tinted());
    EXPECT_EQ(colors.values[SystemColor::Window], 0x332211u);
    EXPECT_EQ(colors.values[SystemColor::ButtonFace], 0x665544u);
    EXPECT_EQ(colors.values[SystemColor::WindowText], 0xCCDDEEu);
    EXPECT_EQ(colors.values[SystemColor::Highlight], 0x998877u);
}

TEST(QVornixAmbientTest, GrayTextIsTheTextOfTheDisabled)
{
    QPalette palette;
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(1, 2, 3));
    EXPECT_EQ(SystemColorsFrom(palette).values[SystemColor::GrayText], 0x030201u);
}

TEST(QVornixAmbientTest, EdgesOfButtonsGoFromLightToDark)
{
    QPalette palette;
    palette.setColor(QPalette::Light, QColor(0xF0, 0xF0, 0xF0));
    palette.setColor(QPalette::Midlight, QColor(0xE0, 0xE0, 0xE0));
    palette.setColor(QPalette::Dark, QColor(0x60, 0x60, 0x60));
    palette.setColor(QPalette::Shadow, QColor(0x30, 0x30, 0x30));
    const SystemColors colors = SystemColorsFrom(palette);
    EXPECT_EQ(colors.values[SystemColor::ButtonHighlight], 0xF0F0F0u);
    EXPECT_EQ(colors.values[SystemColor::Light], 0xE0E0E0u);
    EXPECT_EQ(colors.values[SystemColor::ButtonShadow], 0x606060u);
    EXPECT_EQ(colors.values[SystemColor::DarkShadow], 0x303030u);
}

TEST(QVornixAmbientTest, AFontKeepsItsLook)
{
    QFont font(QStringLiteral("DejaVu Sans"), 11);
    font.setBold(true);
    font.setItalic(true);
    font.setStrikeOut(true);
    const FontPtr taken = FontFrom(font, 96);
    EXPECT_EQ(taken->Name, u"DejaVu Sans");
    EXPECT_DOUBLE_EQ(taken->Size, 11);
    EXPECT_TRUE(taken->Bold);
    EXPECT_TRUE(taken->Italic);
    EXPECT_FALSE(taken->Underline);
    EXPECT_TRUE(taken->Strikethrough);
}

TEST(QVornixAmbientTest, AFontInPixelsHasThatHeightInPixels)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(16);
    EXPECT_DOUBLE_EQ(FontFrom(font, 96)->Size, 12);
    EXPECT_DOUBLE_EQ(FontFrom(font, 72)->Size, 12);
}

TEST(QVornixAmbientTest, APointIsAsLargeAsQtDrawsIt)
{
    const QFont font(QStringLiteral("DejaVu Sans"), 12);
    EXPECT_DOUBLE_EQ(FontFrom(font, 96)->Size, 12);
    EXPECT_DOUBLE_EQ(FontFrom(font, 72)->Size, 9);
}

TEST(QVornixAmbientTest, ANewGridStartsWithTheWidgetsFont)
{
    QWidget form;
    form.setFont(QFont(QStringLiteral("DejaVu Sans"), 13));
    QVornix widget(&form);
    EXPECT_EQ(widget.Grid().Font()->Name, u"DejaVu Sans");
    EXPECT_DOUBLE_EQ(widget.Grid().Font()->Size, 13);
}

TEST(QVornixAmbientTest, AFontChangeReachesTheAmbientFont)
{
    QFrame frame;
    QtContainer container(frame);
    const FontPtr before = container.AmbientFont();
    EXPECT_FALSE(container.ReadAmbient());
    EXPECT_EQ(container.AmbientFont(), before);
    frame.setFont(QFont(QStringLiteral("DejaVu Sans"), 17));
    EXPECT_TRUE(container.ReadAmbient());
    EXPECT_DOUBLE_EQ(container.AmbientFont()->Size, 17);
}

TEST(QVornixAmbientTest, APaletteChangeRepaintsInTheNewColours)
{
    NotedWidget widget;
    widget.Grid().SetFixedRows(1);
    widget.Grid().SetRows(2);
    widget.resize(300, 200);
    ShowAndSettle(widget);
    widget.setPalette(Tinted());
    Settle();
    const Surface& store = *widget.Grid().BackStore();
    EXPECT_EQ(store.GetPixel(50, 30), 0x332211u); // a cell
    EXPECT_EQ(store.GetPixel(60, 10), 0x665544u); // a header
    EXPECT_TRUE(ShowsItsGrid(widget));
}

TEST(QVornixAmbientTest, ThePaletteOfTheApplicationReachesTheGrid)
{
    const QPalette before = QApplication::palette();
    NotedWidget widget;
    widget.resize(300, 200);
    ShowAndSettle(widget);
    QApplication::setPalette(Tinted());
    Settle();
    EXPECT_EQ(widget.Grid().BackStore()->GetPixel(50, 10), 0x332211u);
    QApplication::setPalette(before);
    Settle();
    EXPECT_EQ(widget.Grid().BackStore()->GetPixel(50, 10), SystemColorsFrom(before).values[SystemColor::Window]);
}

TEST(QVornixAmbientTest, AnEqualPaletteLaysNothingOut)
{
    NotedWidget widget;
    widget.resize(300, 200);
    ShowAndSettle(widget);
    widget.Grid().ClearPaintCounters();
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Link, Qt::green);
    widget.setPalette(palette);
    Settle();
    EXPECT_EQ(widget.Grid().Repaints(), 0);
}

} // namespace vornix
