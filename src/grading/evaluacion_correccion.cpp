// Grades and figures of the correction evaluation.
#include "grading/evaluacion_correccion.h"

#include <cmath>

#include "app/estado.h"
#include "grading/enmienda_notas.h"
#include "platform/base_datos.h"
#include "platform/error_ejecucion.h"
#include "platform/numeros.h"

namespace {

BaseDatos& Base() {
    return *estado().BaseDatos;
}

int16_t Fnc_Trae_Alternativas(const QVariant& forma) {
    Recordset rs = Base().OpenRecordset(
        QStringLiteral(" select count (*)  From resp_preguntas_pautas  Where idprueba = ? and "
                       "forma = ?"),
        {estado().Id_Prueba_Actual, forma});
    return CInt(rs[0].toDouble());
}

// A grade cell as the screen reads it: a decimal comma is a point.
double Nota(const Grilla& spr, int fila) {
    return Val(spr.Celda(fila, 11).replace(QLatin1Char(','), QLatin1Char('.')));
}

}  // namespace

void Busca_y_Pone_Nuevas_Notas(Grilla& spr, const TablaNotas& tabla, int16_t preguntas) {
    for (int f = 1; f <= spr.MaxRows(); ++f) {
        const double buenas = Val(spr.Celda(f, 4));
        if (buenas == preguntas) continue;
        if (buenas == 0) return;
        if (const auto nota = Nota_De_Tabla(tabla, static_cast<int>(buenas)))
            spr.FijaCelda(f, 11, *nota);
    }
}

void Recalcula_Nota_100(Grilla& spr, int16_t porcentaje) {
    const bool todas = spr.MaxRows() >= 8;
    const int ultima = todas ? spr.MaxRows() : std::min(5, spr.MaxRows());
    for (int f = 1; f <= ultima; ++f) {
        const int16_t r = CInt(Val(spr.Celda(f, 9)));
        if (!todas && r == 0) return;
        if (r == 100) continue;
        if (porcentaje == 0) throw ErrorEjecucion(QStringLiteral("División por cero"));
        const double y = Round(r * 7.0 / porcentaje, 2);
        spr.FijaCelda(f, 10, y > 7 ? QStringLiteral("7") : y < 1 ? QStringLiteral("1") : CStr(y));
    }
}

Cifras_Curso Cambia_Nota_Promedio(const Grilla& spr) {
    double suma = 0;
    int cuenta = 0;
    for (int f = 1; f <= spr.MaxRows() && Nota(spr, f) != 0; ++f, ++cuenta) suma += Nota(spr, f);
    if (cuenta == 0) throw ErrorEjecucion(QStringLiteral("División por cero"));
    double minima = 7;
    for (int f = 1; f <= spr.MaxRows() && Nota(spr, f) != 0; ++f)
        minima = std::min(minima, Nota(spr, f));
    double maxima = Nota(spr, 1);
    for (int f = 1; f <= spr.MaxRows() && maxima < 7; ++f) {
        const double nota = Nota(spr, f);
        if (nota == 0 && spr.Celda(f, 1).isEmpty()) break;
        maxima = std::max(maxima, nota);
    }
    return {CStr(Round(suma / cuenta, 2)), CStr(minima), CStr(maxima)};
}

double Calculo_Desviacion(const Grilla& spr, double promedio) {
    double suma = 0;
    int filas = 0;
    for (int f = 1; f <= spr.MaxRows() && !spr.Celda(f, 10).isEmpty(); ++f, ++filas)
        suma += Round(std::pow(promedio - Val(spr.Celda(f, 10)), 2), 2);
    if (filas == 0) throw ErrorEjecucion(QStringLiteral("División por cero"));
    return Round(std::sqrt(suma / filas), 2);
}

void Carga_Alumnos_Pantalla(Grilla& spr) {
    Recordset rs =
        Base().OpenRecordset(QStringLiteral("select * from ResultadoAlumnos_rj where idprueba = ?"),
                             {estado().Id_Prueba_Actual});
    spr.SetMaxRows(0);
    spr.SetMaxRows(std::max(1, rs.RecordCount()));
    for (int f = 1; !rs.Eof(); rs.MoveNext(), ++f) {
        const double buenas = rs["Buenas"].toDouble();
        estado().Ptje_Max_Actual = Fnc_Trae_Alternativas(rs["Forma"]);
        if (buenas != 0 && estado().Ptje_Max_Actual == 0)
            throw ErrorEjecucion(QStringLiteral("División por cero"));
        const double rendimiento =
            buenas == 0 ? 0 : Round(buenas * 100 / estado().Ptje_Max_Actual, 0);
        const QString celdas[] = {rs["IdPrueba"].toString(),
                                  rs["Rut"].toString(),
                                  Primer_Apellido(rs["Rut"].toString()),
                                  CStr(buenas),
                                  rs["Malas"].toString(),
                                  rs["Omitidas"].toString(),
                                  rs["Nulas"].toString(),
                                  CStr(buenas),
                                  CStr(rendimiento),
                                  rs["Forma"].toString(),
                                  CStr(Round(rs["Nota"].toDouble(), 2))};
        for (int c = 0; c < 11; ++c) spr.FijaCelda(f, c + 1, celdas[c]);
    }
}

bool Lee_Porcentajes_Nota(QString& desde, QString& hasta) {
    Recordset rs = Base().OpenRecordset(
        QStringLiteral("select desde, hasta from NivelesCalificacion where concepto = ?"),
        {CStr(int(estado().Id_Prueba_Actual))});
    const bool hay = !rs.Eof();
    for (; !rs.Eof(); rs.MoveNext()) {
        desde = CStr(rs[0].toDouble());
        hasta = CStr(rs[1].toDouble());
    }
    return hay;
}

void Cabezas_Evaluacion(Grilla& spr) {
    const char* const cabezas[] = {"Idprueba",    "Rut",      "Nombre", "Buenas",
                                   "Malas",       "Omitidas", "Nulas",  "Puntaje",
                                   "Rendimiento", "Forma",    "Nota"};
    for (int c = 0; c < 11; ++c) spr.FijaCelda(0, c + 1, QString::fromUtf8(cabezas[c]));
}
