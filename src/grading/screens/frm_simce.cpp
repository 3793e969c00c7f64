// FrmSIMCE, "Ensayo SIMCE".
#include "grading/screens/frm_simce.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QTableView>

#include "analysis/exporta_planilla.h"
#include "grading/screens/piezas.h"
#include "platform/dialogos.h"
#include "platform/screens/impresion.h"

FrmSIMCE::FrmSIMCE(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmSIMCE"));
    setWindowTitle(QStringLiteral("Ensayo SIMCE"));
    Construye();
    Ejecutar_Comando([this] { Form_Load(); });
}

void FrmSIMCE::Construye() {
    const PiezasEnsayo p = Arma_Ensayo(
        this, SprPSU, MSChart1, QStringLiteral("Puntaje Mínimo"), [this] { XPButton1_Click(); },
        [this] { XPButton2_Click(); });
    Txt_Base = p.Txt_Base;
    TxtMaximo = p.TxtMaximo;
    p.campos->addRow(Vista_Lectura(SprNiveles, this));
    resize(1100, 560);
}

void FrmSIMCE::Form_Load() {
    Carga_Simce();
    Txt_Base->setText(Base_Simce);
    TxtMaximo->setText(Maximo_Simce);
}

void FrmSIMCE::XPButton1_Click() {
    Exporta_Con_Dialogo(SprPSU, 4, {&MSChart1, nullptr});
}

void FrmSIMCE::XPButton2_Click() {
    Imprime_Grilla(SprPSU, QStringLiteral("Ensayo SIMCE"), 2, {1440, 900, 720, 600});
}
