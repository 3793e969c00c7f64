// FrmSIMCE, "Ensayo SIMCE".
#include "grading/screens/frm_simce.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QTableView>

#include "analysis/exporta_planilla.h"
#include "app/estado.h"
#include "grading/puntajes_ensayo.h"
#include "grading/screens/piezas.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"
#include "platform/screens/impresion.h"

namespace {

const char* const kCabezas[] = {"Rut",      "Nombre", "Buenas",         "Malas",
                                "Omitidas", "Nivel",  "Puntaje Normal", "Puntaje Simce"};
const char* const kNiveles[] = {"INICIAL", "INTERMEDIO", "AVANZADO"};

BaseDatos& Base() {
    return *estado().BaseDatos;
}

}  // namespace

FrmSIMCE::FrmSIMCE(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmSIMCE"));
    setWindowTitle(QStringLiteral("Ensayo SIMCE"));
    for (int c = 1; c <= 8; ++c) SprPSU.FijaCelda(0, c, QString::fromUtf8(kCabezas[c - 1]));
    SprNiveles.FijaCelda(0, 1, QStringLiteral("Nivel"));
    SprNiveles.FijaCelda(0, 2, QStringLiteral("Alumnos"));
    SprNiveles.FijaCelda(0, 3, QStringLiteral("Promedio Simce"));
    for (int r = 1; r <= 3; ++r) SprNiveles.FijaCelda(r, 1, QString::fromUtf8(kNiveles[r - 1]));
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
    Tipo_Prueba();
    Carga_Todos_Rut_Prueba(SprPSU);
    Pongo_Aciertos();
    Calcula_Promedio_Nivel();
    Genere_Grafico_Prueba();
}

void FrmSIMCE::Tipo_Prueba() {
    Recordset rs = Base().OpenRecordset(QStringLiteral(" SELECT *  From puntaje_simce"));
    for (; !rs.Eof(); rs.MoveNext()) {
        Txt_Base->setText(rs["puntaje_minimo"].toString());
        TxtMaximo->setText(rs["puntaje_maximo"].toString());
    }
}

void FrmSIMCE::Pongo_Aciertos() {
    const Estado& e = estado();
    const int16_t nivel_curso = Nivel_Curso(e.Curso_Actual);
    int16_t x = 0;  // a student without right answers keeps the x of the row before
    for (int fila = 1; fila <= SprPSU.MaxRows(); ++fila) {
        Recordset rs = Base().OpenRecordset(
            QStringLiteral(" select buenas , malas, omitidas  from ResultadoAlumnos_rj "
                           " where rut = ? and     idprueba = ? order by rut "),
            {SprPSU.Celda(fila, 1), e.Id_Prueba_Actual});
        int16_t buenas = 0;
        for (; !rs.Eof(); rs.MoveNext()) {
            buenas = CInt(rs["buenas"].toDouble());
            for (int c = 0; c < 3; ++c) SprPSU.FijaCelda(fila, c + 3, rs[c].toString());
        }
        SprPSU.FijaCelda(fila, 7, CStr(Puntaje_Normal_Simce(buenas, e.Ptje_Max_Actual)));
        if (buenas != 0) x = Puntaje_Simce(buenas, e.Ptje_Max_Actual);
        SprPSU.FijaCelda(fila, 8, buenas == 0 ? QStringLiteral("0") : CStr(x));
        SprPSU.FijaCelda(fila, 6, Nivel_Simce(nivel_curso, e.Asignatura_Actual, x));
    }
}

// Students and average "Puntaje Simce" of each level.
void FrmSIMCE::Calcula_Promedio_Nivel() {
    for (int r = 1; r <= 3; ++r) {
        int alumnos = 0;
        double suma = 0;
        for (int fila = 1; fila <= SprPSU.MaxRows(); ++fila) {
            if (SprPSU.Celda(fila, 6) != SprNiveles.Celda(r, 1)) continue;
            ++alumnos;
            suma += Val(SprPSU.Celda(fila, 8));
        }
        SprNiveles.FijaCelda(r, 2, CStr(alumnos));
        SprNiveles.FijaCelda(r, 3, CStr(alumnos == 0 ? 0.0 : Round(suma / alumnos, 1)));
    }
}

void FrmSIMCE::Genere_Grafico_Prueba() {
    QStringList etiquetas;
    std::vector<std::vector<double>> datos;
    for (int r = 1; r <= 3; ++r) {
        etiquetas << SprNiveles.Celda(r, 1);
        datos.push_back({Val(SprNiveles.Celda(r, 2))});
    }
    MSChart1.chartType = GraficoBarras2D;
    MSChart1.ChartData(etiquetas, datos);
    MSChart1.Refresh();
}

void FrmSIMCE::XPButton1_Click() {
    Exporta_Con_Dialogo(SprPSU, 4, {&MSChart1, nullptr});
}

void FrmSIMCE::XPButton2_Click() {
    Imprime_Grilla(SprPSU, QStringLiteral("Ensayo SIMCE"), 2, {1440, 900, 720, 600});
}
