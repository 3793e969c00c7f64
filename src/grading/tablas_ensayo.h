// The PSU and SIMCE practice runs as their screens hold them: the students' grid, the chart
// and the score bounds shown beside them, with the steps of the load. The screens show these;
// the command line exports them.
#pragma once

#include <QString>
#include <cstdint>

#include "platform/grafico.h"
#include "platform/grilla.h"

class Recordset;

class TablasPsu {
  public:
    TablasPsu();
    // The load for the test in hand: score bounds of its subject, its score table, the
    // students, their scores and the chart of the medium estimates.
    void Carga_Psu();
    // The chart of how the medium estimates spread over the score bands.
    void Genere_Grafico_Prueba();

    // 1 Rut, 2 Nombre, 3 Buenas, 4 Malas, 5 Nulas, 6 Omitidas, 7 Nivel Bajo, 8 Nivel Medio,
    // 9 Nivel Alto, 10 Puntaje PSU.
    Grilla SprPSU{0, 10};
    // The subject's score table: 1 right answers, 2 score.
    Grilla Spr_Puntaje_PSU{0, 2};
    Grafico MSChart1;
    // "Puntaje Base" and the maximum score, as their read-only boxes show them.
    QString Base_Psu, Maximo_Psu;

  private:
    void Tipo_Prueba();
    void Carga_Puntajes_PSU();
    void Pongo_Aciertos();
    void Pon_Fila(int fila, const Recordset& rs);
    QString Puntaje_Tabla(int16_t buenas) const;
};

class TablasSimce {
  public:
    TablasSimce();
    // The load for the test in hand: score bounds, students, scores and levels, the summary
    // per level and its chart.
    void Carga_Simce();

    // 1 Rut, 2 Nombre, 3 Buenas, 4 Malas, 5 Omitidas, 6 Nivel, 7 Puntaje Normal, 8 Puntaje Simce.
    Grilla SprPSU{0, 8};
    // One row per level: 1 Nivel, 2 Alumnos, 3 Promedio Simce.
    Grilla SprNiveles{3, 3};
    Grafico MSChart1;
    // "Puntaje Mínimo" and the maximum score, as their read-only boxes show them.
    QString Base_Simce, Maximo_Simce;

  private:
    void Tipo_Prueba();
    void Pongo_Aciertos();
    void Calcula_Promedio_Nivel();
    void Genere_Grafico_Prueba();
};
