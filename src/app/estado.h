// The shared values and mode flags every screen reads and writes, under their own names.
// Screens pass work to each other through these, not through calls with arguments.
#pragma once

#include <QString>
#include <cstdint>
#include <memory>

#include "platform/base_datos.h"

struct Estado {
    // The one open handle on the store, and the one query many screens use in turn.
    ManijaBase BaseDatos;
    std::shared_ptr<::Recordset> Consulta_Actual;

    // The current test: set when a test is chosen on the list or created. 0 means none.
    int16_t Id_Prueba_Actual = 0;
    int16_t Numero_Formas_Actual = 0;
    int16_t Preguntas_Actual = 0;
    // Maximum points in the correction path; alternatives in the key-entry path.
    int16_t Ptje_Max_Actual = 0;
    int16_t Alternativas_Actual = 0;
    QString Nombre_Prueba_Actual;
    QString Profesor_Actual;
    QString Asignatura_Actual;
    QString Curso_Actual;
    QString Tipo_Prueba_Actual;
    QString Rut_Actual;
    // The letters offered in a key's drop-down cells, tab-separated.
    QString Lista_Alternativas;

    // Copy of a test.
    bool Copia_Activa = false;
    int16_t Id_Prueba_Origen = 0;
    int16_t Id_Prueba_Copia = 0;

    // Mode flags set by the menu and read while a screen loads.
    bool Mant_PSU = false;
    bool Mant_SIMCE = false;
    bool Puntajes_PSU = false;
    bool Puntajes_SIMCE = false;
    bool Seteo_Hoja = false;
    bool Corrige_Pruebas = false;
    bool Agrega_Actual = false;
    bool Lee_Pauta = false;
    QString Tipo_Analisis;    // "EJE TEMATICO" or "HABILIDAD"
    QString Modo_Correccion;  // "Modificacion" or "Eliminacion"
    bool Pantalla_Valida = false;
    bool Analisis_Valido = false;

    // A result row being amended from the test list.
    bool Rut_Malo = false;
    bool Forma_Mala = false;
    int Fila_Enmienda = -1;

    // Settings read at start-up.
    int16_t Nota_Minima_Actual = 0;
    // Gray threshold of the pixel test; the reading run sets 130 and 180 by itself.
    int16_t Nivel_Gris = 180;
};

// The one instance.
Estado& estado();
