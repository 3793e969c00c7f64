// A store holding test 4 ("Unidad 1", GENERAL) with three axes, and helpers to add its key,
// its question links and its students.
#pragma once

#include <vector>

#include "app/estado.h"
#include "support/base_temporal.h"

class PruebaEjes : public BaseArrancada {
  protected:
    void SetUp() override {
        BaseArrancada::SetUp();
        Ejecuta(
            "insert into prueba_rj values (4, 'Unidad 1', 'GENERAL', 'Ana Díaz', "
            "'Historia', '2° Medio B', 1, '02-03-2026', 30, 0, 5, 'S', null)");
        estado().Id_Prueba_Actual = 4;
        estado().Nombre_Prueba_Actual = "Unidad 1";
        estado().Tipo_Prueba_Actual = "GENERAL";
        estado().Tipo_Analisis = "EJE TEMATICO";
        for (const char* e : {"Numeros", "Geometria", "Algebra"})
            Ejecuta("insert into ejes (eje, TipoEnsayo, TipoPrueba) values (?, '', 'GENERAL')",
                    {QString::fromLatin1(e)});
    }
    void Clave(int forma, const std::vector<int>& alternativas) {
        for (size_t p = 0; p < alternativas.size(); ++p)
            Ejecuta("insert into Resp_preguntas_pautas values (4, ?, ?, ?)",
                    {int(p + 1), forma, alternativas[p]});
    }
    void Eje(int pregunta, const QString& eje, const QString& habilidad = "H") {
        Ejecuta(
            "insert into NEW_EJE_TEMATICO values ((select count(*) + 1 from "
            "NEW_EJE_TEMATICO), 4, ?, ?, ?, 1, 'GENERAL')",
            {pregunta, eje, habilidad});
    }
    void Alumno(const QString& rut, const QString& nombre, int forma,
                const std::vector<int>& respuestas) {
        Ejecuta("insert into ALUMNOS values (?, ?, '2° Medio B', '')", {rut, nombre});
        for (size_t p = 0; p < respuestas.size(); ++p)
            Ejecuta("insert into respuesta_alumnos_por_rut values (4, ?, ?, ?, ?)",
                    {int(p + 1), forma, respuestas[p], rut});
    }
};
