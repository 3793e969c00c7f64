// Small pieces the grading screens build their layouts from.
#include "grading/screens/piezas.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

#include "platform/dialogos.h"
#include "platform/screens/controles.h"
#include "platform/screens/grilla_modelo.h"
#include "platform/screens/vista_grafico.h"

QTableView* Vista_Lectura(Grilla& g, QWidget* padre) {
    auto* v = new QTableView(padre);
    v->setModel(new GrillaModelo(g, v));
    v->setEditTriggers(QAbstractItemView::NoEditTriggers);
    v->verticalHeader()->setDefaultSectionSize(22);
    return v;
}

PiezasEnsayo Arma_Ensayo(QWidget* pantalla, Grilla& alumnos, Grafico& grafico,
                         const QString& etiqueta_base, std::function<void()> exporta,
                         std::function<void()> imprime) {
    PiezasEnsayo p{new QLineEdit(pantalla), new QLineEdit(pantalla), new QFormLayout};
    for (QLineEdit* t : {p.Txt_Base, p.TxtMaximo}) t->setReadOnly(true);
    p.campos->addRow(etiqueta_base, p.Txt_Base);
    p.campos->addRow(QStringLiteral("Puntaje Máximo"), p.TxtMaximo);
    p.campos->addRow(Boton(pantalla, QStringLiteral("XPButton1"), QStringLiteral("Exportar Excel"),
                           std::move(exporta)));
    p.campos->addRow(Boton(pantalla, QStringLiteral("XPButton2"), QStringLiteral("Imprimir"),
                           std::move(imprime)));
    p.campos->addRow(Boton(pantalla, QStringLiteral("XPButCancelar"), QStringLiteral("Salir"),
                           [pantalla] { pantalla->close(); }));
    auto* derecha = new QVBoxLayout;
    derecha->addLayout(p.campos);
    derecha->addWidget(new VistaGrafico(grafico, pantalla), 1);
    auto* capa = new QHBoxLayout(pantalla);
    capa->addWidget(Vista_Lectura(alumnos, pantalla), 3);
    capa->addLayout(derecha, 2);
    return p;
}
