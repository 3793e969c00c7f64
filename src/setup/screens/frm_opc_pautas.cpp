// Choosing how a key is entered.
#include "setup/screens/frm_opc_pautas.h"

#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/estado.h"
#include "platform/screens/controles.h"
#include "platform/screens/navegacion.h"
#include "setup/screens/frm_ing_manual.h"

FrmOPCPautas::FrmOPCPautas(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmOPCPautas"));
    setWindowTitle(QStringLiteral("Opc. Pautas "));
    OptIngpautpantalla = new QRadioButton(QStringLiteral("Ingreso de pauta por pantalla"), this);
    OptIngrPautOptica = new QRadioButton(QStringLiteral("Ingreso de pauta óptica"), this);
    auto* capa = new QVBoxLayout(this);
    capa->addWidget(new QLabel(QStringLiteral("Favor seleccionar tipo de pauta"), this));
    capa->addWidget(OptIngpautpantalla);
    capa->addWidget(OptIngrPautOptica);
    capa->addWidget(Boton(this, QStringLiteral("XPButAceptar"), QStringLiteral("Aceptar"), [this] { XPButAceptar_Click(); }));
    capa->addWidget(Boton(this, QStringLiteral("XPButCancelar"), QStringLiteral("Cancelar"), [this] { close(); }));
    resize(340, 200);
}

void FrmOPCPautas::XPButAceptar_Click() {
    if (OptIngpautpantalla->isChecked()) {
        Carga_Ingreso_Manual();
        Muestra_Pantalla(QStringLiteral("FrmIngManual"));
    } else if (OptIngrPautOptica->isChecked()) {
        estado().Lee_Pauta = true;
        OptIngrPautOptica->setAutoExclusive(false);
        OptIngrPautOptica->setChecked(false);
        OptIngrPautOptica->setAutoExclusive(true);
        Muestra_Pantalla(QStringLiteral("FrmImagen"));
    } else {
        return;
    }
    close();
    Descarga_Pantalla(QStringLiteral("frmCorrecPru"));
}
