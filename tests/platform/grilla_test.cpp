// The working grid and its view model.
#include "platform/grilla.h"

#include <gtest/gtest.h>

#include "platform/error_ejecucion.h"
#include "platform/screens/grilla_modelo.h"

TEST(Grilla, CursorCellsAndBounds) {
    Grilla g(2, 3);
    g.Row = 2;
    g.Col = 3;
    g.SetText("7.0");
    EXPECT_EQ(g.Celda(2, 3), "7.0");
    EXPECT_EQ(g.Text(), "7.0");
    g.FijaCelda(0, 1, "Rut");  // column head
    g.FijaCelda(1, 0, "1");    // row head
    EXPECT_EQ(g.Celda(0, 1), "Rut");
    // A write out of the grid is never dropped in silence.
    EXPECT_THROW(g.FijaCelda(3, 1, "fuera"), ErrorEjecucion);
    EXPECT_THROW(g.FijaCelda(1, 4, "fuera"), ErrorEjecucion);
    EXPECT_THROW(g.SetBackColor(-1, 1, ColorAmarillo), ErrorEjecucion);
    EXPECT_EQ(g.Celda(3, 1), "");
    EXPECT_EQ(g.Celda(-1, 1), "");
    // Rows are grown one by one as the screens add them; cells already written stay.
    g.SetMaxRows(3);
    g.FijaCelda(3, 1, "nueva");
    EXPECT_EQ(g.Celda(2, 3), "7.0");
    EXPECT_EQ(g.Celda(3, 1), "nueva");
    g.SetMaxRows(2);
    EXPECT_EQ(g.MaxRows(), 2);
    g.SetMaxRows(3);
    EXPECT_EQ(g.Celda(3, 1), "") << "a dropped row comes back empty";
}

TEST(Grilla, DeleteRowsMovesCellsAndColoursUp) {
    Grilla g(4, 2);
    for (int f = 1; f <= 4; ++f) g.FijaCelda(f, 1, QString::number(f));
    g.SetBackColor(3, 2, ColorAmarillo);
    g.SetBackColor(4, 1, ColorRojo);
    g.SetBackColor(1, 1, ColorRojo);
    g.DeleteRows(2, 1);
    EXPECT_EQ(g.MaxRows(), 4);
    EXPECT_EQ(g.Celda(1, 1), "1");
    EXPECT_EQ(g.Celda(2, 1), "3");
    EXPECT_EQ(g.Celda(3, 1), "4");
    EXPECT_EQ(g.Celda(4, 1), "");
    EXPECT_EQ(g.BackColor(2, 2), ColorAmarillo);
    EXPECT_EQ(g.BackColor(3, 1), ColorRojo);
    EXPECT_EQ(g.BackColor(4, 1), -1);
    EXPECT_EQ(g.BackColor(1, 1), ColorRojo);
    g.DeleteRows(3, 10);  // more than there are
    EXPECT_EQ(g.Celda(3, 1), "");
    EXPECT_EQ(g.Celda(2, 1), "3");
}

TEST(Grilla, ModelShowsHeadsCellsAndColours) {
    Grilla g(2, 28);
    GrillaModelo m(g);
    g.FijaCelda(0, 1, "Rut");
    g.FijaCelda(1, 1, "12345678-5");
    g.SetBackColorFila(2, ColorAmarillo);
    EXPECT_EQ(m.rowCount(), 2);
    EXPECT_EQ(m.columnCount(), 28);
    EXPECT_EQ(m.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), "Rut");
    EXPECT_EQ(m.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), "B");
    EXPECT_EQ(m.headerData(26, Qt::Horizontal, Qt::DisplayRole).toString(), "AA");
    EXPECT_EQ(m.headerData(1, Qt::Vertical, Qt::DisplayRole).toString(), "2");
    EXPECT_EQ(m.data(m.index(0, 0), Qt::DisplayRole).toString(), "12345678-5");
    EXPECT_EQ(m.data(m.index(1, 5), Qt::BackgroundRole).value<QColor>(), QColor(255, 255, 0));
    EXPECT_FALSE(m.data(m.index(0, 5), Qt::BackgroundRole).isValid());
    g.SetMaxRows(5);
    EXPECT_EQ(m.rowCount(), 5) << "the model follows the grid's shape";
}
