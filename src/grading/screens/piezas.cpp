// Small pieces the grading screens build their layouts from.
#include "grading/screens/piezas.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTableView>

#include "platform/dialogos.h"
#include "platform/screens/grilla_modelo.h"

QPushButton* Boton_Orden(QWidget* padre, const QString& nombre, const QString& texto,
                         std::function<void()> comando) {
    auto* b = new QPushButton(texto, padre);
    b->setObjectName(nombre);
    QObject::connect(b, &QPushButton::clicked, padre,
                     [comando = std::move(comando)] { Ejecutar_Comando(comando); });
    return b;
}

QTableView* Vista_Lectura(Grilla& g, QWidget* padre) {
    auto* v = new QTableView(padre);
    v->setModel(new GrillaModelo(g, v));
    v->setEditTriggers(QAbstractItemView::NoEditTriggers);
    v->verticalHeader()->setDefaultSectionSize(22);
    return v;
}
