// Grades and figures of the correction evaluation.
#include "grading/evaluacion_correccion.h"

#include <cmath>

#include "platform/error_ejecucion.h"
#include "platform/numeros.h"

namespace {

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
