// Mouse and keys on a grid view.
#include "support/operador.h"

#include <QComboBox>
#include <QTableView>
#include <QTest>

namespace {

QPoint Centro(const QTableView& vista, int fila, int columna) {
    return vista.visualRect(vista.model()->index(fila - 1, columna - 1)).center();
}

}  // namespace

void Pulsa_Celda(QTableView& vista, int fila, int columna) {
    QTest::mouseClick(vista.viewport(), Qt::LeftButton, {}, Centro(vista, fila, columna));
    QCoreApplication::processEvents();
}

// A double click comes as a click, then the double click event and its release.
void Doble_Pulsa_Celda(QTableView& vista, int fila, int columna) {
    const QPoint centro = Centro(vista, fila, columna);
    QTest::mouseClick(vista.viewport(), Qt::LeftButton, {}, centro);
    QTest::mouseDClick(vista.viewport(), Qt::LeftButton, {}, centro);
    QTest::mouseRelease(vista.viewport(), Qt::LeftButton, {}, centro);
    QCoreApplication::processEvents();
}

QComboBox* Lista_Abierta(const QTableView& vista) {
    for (QComboBox* lista : vista.viewport()->findChildren<QComboBox*>())
        if (!lista->isHidden()) return lista;
    return nullptr;
}
