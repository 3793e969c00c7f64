// FrmPsu, "Ensayo PSU".
#include "grading/screens/frm_psu.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>

#include "analysis/exporta_planilla.h"
#include "app/estado.h"
#include "grading/screens/piezas.h"
#include "platform/dialogos.h"
#include "platform/screens/impresion.h"

namespace {

// The items of Combo1 and the chart type code each one stands for.
const struct {
    const char* texto;
    int tipo;
} kTiposGrafico[] = {
    {"1 - VtChChartType2dArea", 5},        {"2 - VtChChartType2dBar", 1},
    {"3 - VtChChartType2dCombination", 9}, {"4 - VtChChartType2dLine", 3},
    {"5 - VtChChartType2dPie", 14},        {"6 - VtChChartType2dStep", 7},
    {"7 - VtChChartType2dXY", 16},         {"8 - VtChChartType3dArea", 4},
};

}  // namespace

FrmPsu::FrmPsu(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmPsu"));
    setWindowTitle(QStringLiteral("Ensayo PSU"));
    Construye();
    Ejecutar_Comando([this] { Form_Load(); });
}

void FrmPsu::Construye() {
    const PiezasEnsayo p = Arma_Ensayo(
        this, SprPSU, MSChart1, QStringLiteral("Puntaje Base"), [this] { XPButton1_Click(); },
        [this] { XPButton2_Click(); });
    Txt_Base = p.Txt_Base;
    TxtMaximo = p.TxtMaximo;
    Combo1 = new QComboBox(this);
    for (const auto& t : kTiposGrafico) Combo1->addItem(QString::fromUtf8(t.texto));
    Combo1->setCurrentIndex(1);
    connect(Combo1, &QComboBox::activated, this,
            [this] { Ejecutar_Comando([this] { Combo1_Click(); }); });
    p.campos->insertRow(2, QStringLiteral("Tipo de gráfico"), Combo1);
    resize(1200, 560);
}

void FrmPsu::Form_Load() {
    if (estado().Id_Prueba_Actual == 0) {
        dialogos().MsgBox(QStringLiteral("UD. no tiene asociado a una prueba para esta carga, "
                                         "verifique sus datos"),
                          vbOKOnly, QStringLiteral("Corrección de pruebas"));
        return;
    }
    Carga_Psu();
    Txt_Base->setText(Base_Psu);
    TxtMaximo->setText(Maximo_Psu);
}

void FrmPsu::Combo1_Click() {
    MSChart1.chartType = kTiposGrafico[Combo1->currentIndex()].tipo;
    if (estado().Id_Prueba_Actual == 0) {
        dialogos().MsgBox(QStringLiteral("No tiene numero de prueba asociado, selecione una "
                                         "prueba para visualizar"),
                          vbExclamation, QStringLiteral("Analisis Cualitativo"));
        return;
    }
    Genere_Grafico_Prueba();
}

void FrmPsu::XPButton1_Click() {
    Exporta_Con_Dialogo(SprPSU, 3, {&MSChart1, nullptr});
}

void FrmPsu::XPButton2_Click() {
    Imprime_Grilla(SprPSU, QStringLiteral("Ensayo PSU"), 2, {1440, 900, 720, 600});
}
