// The per-question analysis: right, wrong and omitted answers per question of one form, and how
// often each alternative was marked. The stored answers and the key are walked side by side,
// both sorted by question; each walk consumes the answers it counted.
#pragma once

#include <QString>
#include <cstdint>
#include <vector>

#include "platform/grafico.h"
#include "platform/grilla.h"

// Codes of the stored answers and of the key: 1 to 5 are A to E, 6 omitted.
constexpr int kOmitida = 6;

// A share as the tables write it: (cantidad / total) x 100 to no decimals, ties to even,
// without "%"; "0" when the count is below 1, so a total of 0 never divides.
QString Porcentaje_Pregunta(int cantidad, int total);

// Refills the two working tables, columns pregunta and alternativa, with the stored answers
// and the key of form `forma` of the current test, sorted by question and alternative.
void Carga_Grafico_Aciertos(int16_t forma, Grilla& Spr_Pregunta_Respuesta,
                            Grilla& Spr_Respuesta_Pauta);

// One row per key entry: buenas, malas and omitidas with their shares. Consumes the answers.
void Pongo_Aciertos(Grilla& Spr_Pregunta_Respuesta, const Grilla& Spr_Respuesta_Pauta,
                    Grilla& SprAciertos);
// One row per key entry: count and share of A to E and of omitted. Consumes the answers.
void Pongo_Frecuencias(Grilla& Spr_Pregunta_Respuesta, const Grilla& Spr_Respuesta_Pauta,
                       Grilla& SprFrecuencia);

// The chart's rows from SprAciertos: malas, buenas, omitidas (in that order), "" as 0.
std::vector<std::vector<double>> Datos_Grafico_Aciertos(const Grilla& SprAciertos);

// The current test's identity on rows 2 to 7 of the grid's last column.
void Agrega_Datos_Prueba(Grilla& grilla);

// The file of form k in a several-forms export: the name split at its first "."; a name
// without a dot takes ".xlsx" as its extension, giving two dots ("nota_FORMA_1..xlsx").
QString Archivo_Forma(const QString& nombre, int forma);

// The per-question analysis as its screen holds it: the working tables, the two shown tables
// and the chart.
class TablasPregunta {
  public:
    // Heads of SprAciertos and SprFrecuencia.
    void Setea_Grilla();
    void Setea_Grilla_Fre();
    // Carga_Grafico_Aciertos, Pongo_Aciertos, again Carga_Grafico_Aciertos, Pongo_Frecuencias
    // and Genero_Grafico for one form.
    void Calcula_Forma(int16_t forma);
    void Genero_Grafico();

    // Hidden working tables: pregunta, alternativa.
    Grilla Spr_Pregunta_Respuesta{0, 2};
    Grilla Spr_Respuesta_Pauta{0, 2};
    // Count and share of buenas, malas, omitidas; 7 a spacer; 8 the test's identity.
    Grilla SprAciertos{0, 8};
    // Count and share of A to E and of omitted; 13 a spacer; 14 the test's identity.
    Grilla SprFrecuencia{0, 14};
    Grafico MSChart1;
};
