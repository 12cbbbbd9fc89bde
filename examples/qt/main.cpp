// A window with a small price list.
#include <vornix/qvornix.h>

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);

    vornix::QVornix table;
    vornix::Vornix& grid = table.Grid();
    grid.SetFixedRows(1);
    grid.SetRows(3);
    grid.SetCols(3);

    const char16_t* const header[] = { u"Article", u"Price", u"In stock" };
    for (vornix::i16 Col = 0; Col < 3; ++Col)
        grid.SetText(-1, Col, header[Col]);

    const char16_t* const articles[] = { u"Pencil", u"Paper, 500 sheets", u"Ink" };
    const char16_t* const prices[] = { u"0.8", u"6.5", u"12" };
    for (vornix::i16 Row = 0; Row < 3; ++Row) {
        grid.SetText(Row, 0, articles[Row]);
        grid.SetText(Row, 1, prices[Row]);
        grid.SetCellChecked(Row, 2, Row != 1);
    }

    grid.SetColFormat(1, u"#,##0.00");
    grid.SetColTextAlign(1, vornix::vxTxtRight | vornix::vxTxtVCenter | vornix::vxSingleLine);
    grid.SetColMode(2, vornix::vxCheckBox);
    grid.SetColTextAlign(2, vornix::vxTxtCenter | vornix::vxTxtVCenter);

    table.setWindowTitle(QStringLiteral("Price list"));
    table.resize(480, 240);
    table.show();
    return application.exec();
}
