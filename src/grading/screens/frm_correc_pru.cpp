// The test list.
#include "grading/screens/frm_correc_pru.h"

#include <QLabel>
#include <QVBoxLayout>

frmCorrecPru::frmCorrecPru(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("frmCorrecPru"));
    setWindowTitle(QStringLiteral("Resumen Pruebas Ingresadas."));
    auto* capa = new QVBoxLayout(this);
    auto* aviso = new QLabel(QStringLiteral("Aún no hay pruebas ingresadas."), this);
    aviso->setAlignment(Qt::AlignCenter);
    capa->addWidget(aviso);
    resize(900, 560);
}
