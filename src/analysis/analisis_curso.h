// The course analysis: how the grades of a test spread over twelve bands of half a point.
// Grades are placed by comparing texts, not numbers: "2.0" fits no band, "7" fits the last.
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <array>

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
