// FrmPsu, "Ensayo PSU".
#include "grading/screens/frm_psu.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>

#include "analysis/exporta_planilla.h"
#include "app/estado.h"
#include "grading/puntajes_ensayo.h"
#include "grading/screens/piezas.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"
#include "platform/screens/impresion.h"

namespace {

const char* const kCabezas[] = {"Rut",        "Nombre",     "Buenas",     "Malas",
                                "Nulas",      "Omitidas",   "Nivel Bajo", "Nivel Medio",
                                "Nivel Alto", "Puntaje PSU"};

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

BaseDatos& Base() {
    return *estado().BaseDatos;
}

}  // namespace

FrmPsu::FrmPsu(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmPsu"));
    setWindowTitle(QStringLiteral("Ensayo PSU"));
    for (int c = 1; c <= 10; ++c) SprPSU.FijaCelda(0, c, QString::fromUtf8(kCabezas[c - 1]));
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
    Tipo_Prueba();
    Carga_Puntajes_PSU();
    Carga_Todos_Rut_Prueba(SprPSU);
    Pongo_Aciertos();
    Genere_Grafico_Prueba();
}

// The practice test's minimum and maximum score, by its subject.
void FrmPsu::Tipo_Prueba() {
    const QString asignatura = estado().Asignatura_Actual;
    Recordset rs = Base().OpenRecordset(
        QStringLiteral(" SELECT puntaje_min, puntaje_max, nombre_psu  From puntajes_psu_new"));
    for (; !rs.Eof(); rs.MoveNext()) {
        if (Sin_Espacios(rs["nombre_psu"].toString()) != asignatura) continue;
        Txt_Base->setText(rs["puntaje_min"].toString());
        TxtMaximo->setText(rs["puntaje_max"].toString());
    }
    if (!Txt_Base->text().isEmpty()) return;
    Recordset viejo =
        Base().OpenRecordset(QStringLiteral(" SELECT *  From puntajes_psu where codigo_tema = 4"));
    for (; !viejo.Eof(); viejo.MoveNext()) {
        Txt_Base->setText(viejo["puntaje_min"].toString());
        TxtMaximo->setText(viejo["puntaje_max"].toString());
    }
}

void FrmPsu::Carga_Puntajes_PSU() {
    Recordset rs = Base().OpenRecordset(
        QStringLiteral(" select numero_pregunta, puntaje_obtenido from Puntajes_PSU_DINAMICO "
                       " where nombre_psu =  ?"),
        {estado().Asignatura_Actual});
    for (; !rs.Eof(); rs.MoveNext()) {
        const int fila = Spr_Puntaje_PSU.MaxRows() + 1;
        Spr_Puntaje_PSU.SetMaxRows(fila);
        Spr_Puntaje_PSU.FijaCelda(fila, 1, rs[0].toString());
        Spr_Puntaje_PSU.FijaCelda(fila, 2, rs[1].toString());
    }
}

// Without a minimum and a maximum score only the ruts and names are shown.
void FrmPsu::Pongo_Aciertos() {
    for (int fila = 1; fila <= SprPSU.MaxRows(); ++fila) {
        Recordset rs = Base().OpenRecordset(
            QStringLiteral(" select buenas , malas, omitidas , nulas from ResultadoAlumnos_rj "
                           " where rut = ? and     idprueba = ? order by rut "),
            {SprPSU.Celda(fila, 1), estado().Id_Prueba_Actual});
        if (Val(Txt_Base->text()) == 0 || Val(TxtMaximo->text()) == 0) return;
        for (; !rs.Eof(); rs.MoveNext()) Pon_Fila(fila, rs);
    }
}

// One row of results; a later row of the same student overwrites it.
void FrmPsu::Pon_Fila(int fila, const Recordset& rs) {
    const int16_t buenas = CInt(rs["buenas"].toDouble());
    const char* const campos[] = {"buenas", "malas", "nulas", "omitidas"};
    for (int c = 0; c < 4; ++c) SprPSU.FijaCelda(fila, 3 + c, rs[campos[c]].toString());
    const NivelesPsu n = Calcula_Niveles_Psu(buenas, estado().Preguntas_Actual);
    SprPSU.FijaCelda(fila, 7, CStr(n.bajo));
    SprPSU.FijaCelda(fila, 8, CStr(n.medio));
    SprPSU.FijaCelda(fila, 9, CStr(n.alto));
    const QString puntaje = Puntaje_Tabla(buenas);
    if (!puntaje.isNull()) SprPSU.FijaCelda(fila, 10, puntaje);
}

// The score of the first row of the table for that many right answers; null without one.
QString FrmPsu::Puntaje_Tabla(int16_t buenas) const {
    for (int r = 1; r <= Spr_Puntaje_PSU.MaxRows(); ++r)
        if (Val(Spr_Puntaje_PSU.Celda(r, 1)) == buenas) return Spr_Puntaje_PSU.Celda(r, 2);
    return QString();
}

void FrmPsu::Genere_Grafico_Prueba() {
    if (estado().Id_Prueba_Actual == 0) {
        dialogos().MsgBox(QStringLiteral("No tiene numero de prueba asociado, selecione una "
                                         "prueba para visualizar"),
                          vbExclamation, QStringLiteral("Analisis Cualitativo"));
        return;
    }
    std::vector<std::vector<double>> datos(15, std::vector<double>{0});
    for (int fila = 1; fila <= SprPSU.MaxRows(); ++fila)
        if (const int banda = Banda_Psu(Val(SprPSU.Celda(fila, 8)))) ++datos[banda - 1][0];
    MSChart1.ChartData(Rangos_Psu(), datos);
    MSChart1.Refresh();
}

void FrmPsu::Combo1_Click() {
    MSChart1.chartType = kTiposGrafico[Combo1->currentIndex()].tipo;
    Genere_Grafico_Prueba();
}

void FrmPsu::XPButton1_Click() {
    Exporta_Con_Dialogo(SprPSU, 3, {&MSChart1, nullptr});
}

void FrmPsu::XPButton2_Click() {
    Imprime_Grilla(SprPSU, QStringLiteral("Ensayo PSU"), 2, {1440, 900, 720, 600});
}
