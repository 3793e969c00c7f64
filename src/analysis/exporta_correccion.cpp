// The spreadsheet of the correction evaluation.
#include <QDate>

#include "analysis/exporta_comun.h"
#include "app/estado.h"
#include "platform/grilla.h"
#include "platform/numeros.h"

namespace {

void Agrega_Datos_Prueba(Hoja& hoja, int fila, const QString& minima_4, const QString& maxima_7) {
    const Estado& e = estado();
    const QString lineas[] = {QStringLiteral("Prueba: ") + e.Nombre_Prueba_Actual,
                              QStringLiteral("Asignatura: ") + e.Asignatura_Actual,
                              QStringLiteral("Curso: ") + e.Curso_Actual,
                              QStringLiteral("Profesor: ") + e.Profesor_Actual,
                              QStringLiteral("Fecha: ") + Fecha_Texto(QDate::currentDate()),
                              QStringLiteral("Nota Ajuste 4: ") + minima_4,
                              QStringLiteral("Nota Ajuste 7: ") + maxima_7};
    for (const QString& l : lineas) hoja.Cells(fila++, 1).Value(l);
}

}  // namespace

void Exportar_Excel_Correccion(const QString& ruta, const Grilla& SprEvaCorrec,
                               Grilla& Spr_Pauta_Respuesta, const QString& minima_4,
                               const QString& maxima_7) {
    Libro libro;
    Arma_Planilla_Correccion(libro.Sheets(1), SprEvaCorrec, Spr_Pauta_Respuesta, minima_4,
                             maxima_7);
    libro.Close(true, ruta);
}

void Arma_Planilla_Correccion(Hoja& hoja, const Grilla& SprEvaCorrec, Grilla& Spr_Pauta_Respuesta,
                              const QString& minima_4, const QString& maxima_7) {
    Spr_Pauta_Respuesta.SetMaxRows(0);
    Spr_Pauta_Respuesta.SetMaxRows(SprEvaCorrec.MaxRows());
    for (int f = 1; f <= SprEvaCorrec.MaxRows(); ++f)
        for (int c = 1; c <= SprEvaCorrec.MaxCols(); ++c)
            Spr_Pauta_Respuesta.FijaCelda(f, c, SprEvaCorrec.Celda(f, c));
    hoja.Name = QStringLiteral("Evaluacion de Correccion");
    hoja.Range(QStringLiteral("A:A")).ColumnWidth(23);
    hoja.Range(QStringLiteral("B:B")).ColumnWidth(45);
    hoja.Range(QStringLiteral("C:CX")).ColumnWidth(2);
    for (int forma = 1; forma <= estado().Numero_Formas_Actual; ++forma)
        for (int c = 1; c <= Spr_Pauta_Respuesta.MaxCols(); ++c) Celda_Encabezado(hoja, 1, c);
    for (int f = 0; f <= Spr_Pauta_Respuesta.MaxRows(); ++f)
        for (int c = 1; c <= Spr_Pauta_Respuesta.MaxCols(); ++c)
            if (const QString t = Spr_Pauta_Respuesta.Celda(f, c); !Marcada(t))
                hoja.Cells(f + 1, c).Value(t);
    Agrega_Datos_Prueba(hoja, Spr_Pauta_Respuesta.MaxRows() + 3, minima_4, maxima_7);
}
