// The course analysis: how the grades of a test spread over twelve bands of half a point.
// Grades are placed by comparing texts, not numbers: "2.0" fits no band, "7" fits the last.
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <array>

#include "platform/grafico.h"
#include "platform/grilla.h"

constexpr int kBandas = 12;

// The bands as the grid shows them, "1.00 - 1.50" to "6.51 - 7.00".
const QStringList& Rangos_Bandas();
// The chart's labels: the same but for the eighth, "4.51 ,5.00".
const QStringList& Etiquetas_Grafico_Bandas();

// The band (1 to 12) of a grade's text, the first whose bounds hold it in code order; 0 when
// none does.
int Banda_Nota(const QString& nota);
// NOTA of a result as text, "," turned into "."; ErrorEjecucion when it has no value.
QString Texto_Nota(const QVariant& nota);

// Students per band. Bands 4, 8 and 12 count in 16 bits: past 32767 is an overflow.
class ConteoBandas {
  public:
    void Suma(int banda);
    double Cuenta(int banda) const { return cuenta_[banda - 1]; }
    double Total() const;
    // The band's share as "33.33 %", "50 %"; "0 %" for an empty band. For bands 4, 8 and 12
    // count x 100 is a 16-bit product: 328 or more students there is an overflow.
    QString Porcentaje(int banda) const;

  private:
    std::array<double, kBandas> cuenta_{};
};

// The course analysis as its screen holds it: the grid of bands and the chart.
class TablasCurso {
  public:
    // The grid as it stands before the load: the bands, each with 0 students.
    TablasCurso();
    // The load for the test in hand: its identity read when no teacher is known yet, the
    // grades counted by band, the chart (bars of the counts) and the grid.
    void Carga_Curso();

    // Columns 1 Rango, 2 Alumnos, 3 Porcentaje, 5 the test's identity on rows 2 to 7.
    Grilla SprResulprucargada{12, 5};
    Grafico MSChart1;

  private:
    void Carga_Prueba();
    void Llena_Grilla(const ConteoBandas& conteo);
};
