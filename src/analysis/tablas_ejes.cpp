// The axes and skills analysis: its load and the recomputation of a form.
#include "analysis/tablas_ejes.h"

#include <algorithm>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"

TablasEjes::TablasEjes(bool sep) : sep_(sep) {
    const QStringList cabezas = {"Cantidad", "% Buenas",  "Cantidad",   "% Malas",
                                 "Cantidad", "% Omisión", "Rendimiento"};
    for (int c = 1; c <= 7; ++c) SprSuperior.FijaCelda(0, c, cabezas[c - 1]);
}

bool TablasEjes::Carga_Ejes(const QString& forma) {
    Estado& e = estado();
    e.Analisis_Valido = true;
    Recordset rs = e.BaseDatos->OpenRecordset(
        QStringLiteral("select * from NEW_EJE_TEMATICO Where idprueba = ? and tipo_prueba = ? "
                       "order by correlativo"),
        {e.Id_Prueba_Actual, e.Tipo_Prueba_Actual});
    if (rs.Eof()) {
        dialogos().MsgBox(
            QStringLiteral("La prueba ") + e.Nombre_Prueba_Actual + QStringLiteral(" codigo ") +
                QString::number(e.Id_Prueba_Actual) +
                (Modo_Habilidades()
                     ? QStringLiteral(" no tiene asociado las Habilidades, asignelas")
                     : QStringLiteral(" no tiene asociado Ejes tematicos, asignelos")),
            vbCritical, QStringLiteral("Ejes tematicos y Habilidades"));
        e.Analisis_Valido = false;
        return false;
    }
    niveles = Lee_Niveles();
    Carga_Respuesta_Prueba(SprRespuestas);
    Objetivos_Prueba(SprObjetivos);
    Lee_Nombres_Por_Modo(SprSuperior);
    // The form list's first entry, and the click it triggers.
    if (!forma.isEmpty()) Recalcula_Forma(forma);
    Pareo_Objetivos_Preguntas(SprRespuestas, SprObjetivos, forma, SprSuperior);
    // Room for every student group, also those the course grid merges or leaves out.
    Setea_Grilla_Pantalla(std::max(SprSuperior.MaxRows(), Grupos_Alumno(SprObjetivos)),
                          SprPantalla);
    if (sep_)
        Agrega_Alummnos(SprRespuestas, SprObjetivos, niveles, SprPantalla);
    else
        Agrega_Alummnos(SprRespuestas, SprObjetivos, niveles, SprPantalla, &SprSoloSep, &SprSep);
    Genero_Grafico();
    if (SprSuperior.MaxRows() == 0) SprPantalla.SetMaxRows(0);
    Carga_Nueva_Grilla_Sep(SprSuperior, SprPantalla, niveles, SprSep, !sep_);
    return true;
}

void TablasEjes::Recalcula_Forma(const QString& forma) {
    Lee_Nombres_Por_Modo(SprSuperior);
    Pareo_Objetivos_Preguntas(SprRespuestas, SprObjetivos, forma, SprSuperior);
    Genero_Grafico();
}

// The SEP screen keeps the chart's own row labels, R1, R2, ...
void TablasEjes::Genero_Grafico() {
    if (SprSuperior.MaxRows() == 0) return;
    QStringList etiquetas;
    for (int r = 1; r <= SprSuperior.MaxRows(); ++r)
        etiquetas << (sep_ ? QStringLiteral("R%1") : QStringLiteral("EJE %1")).arg(r);
    MSChart1.series = {QStringLiteral(" % Buenas"), QStringLiteral("% Malas"),
                       QStringLiteral("% Omision"), QStringLiteral("% Rendimiento")};
    MSChart1.ChartData(etiquetas, Datos_Grafico_Ejes(SprSuperior));
    MSChart1.chartType = GraficoBarras2D;
    MSChart1.Refresh();
}

FuentesExportacion TablasEjes::Fuentes_Propias() {
    return {&MSChart1, &SprSuperior};
}
