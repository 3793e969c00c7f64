// The reading run of the screen "Formulario Corrector", without widgets: the folder of sheets
// read one by one, the dialogues that resolve what is missing, each sheet stored and then its
// image deleted, and the grading at the end. The screen and `zorta corregir` both drive it and
// show its progress through an observer.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

#include "grading/corrector.h"
#include "reading/lectura_hoja.h"

class CorridaLectura;

// Who shows the run: the screen or the command line. Every call has a default that does
// nothing, so a silent run needs no observer.
class ObservadorCorrida {
  public:
    virtual ~ObservadorCorrida() = default;
    // A sheet has been opened (the counts changed) or its reading moved on (marks, form, rut).
    virtual void Hoja_En_Mano(const CorridaLectura&, const Imagen&) {}
    // Something shown changed: counts, List1, the working table, captions, enabled commands.
    virtual void Actualiza(const CorridaLectura&) {}
    // The pause between stages; it yields to the screen and must not slow a run.
    virtual void Espera(double /*segundos*/) {}
    // Unloads the test list, "frmCorrecPru".
    virtual void Descarga_Lista() {}
    // Unloads this screen and the test list, then shows the test list again.
    virtual void Cierra_Y_Muestra_Lista() {}
};

// What happened to each sheet, for the command line's summary.
struct ResumenCorrida {
    int leidas = 0;         // bitmaps opened
    int guardadas = 0;      // sheets whose rows were committed
    int fallidas = 0;       // failures A, B and C
    bool completa = false;  // the loop went through the whole folder
};

class CorridaLectura {
  public:
    explicit CorridaLectura(ObservadorCorrida* observador = nullptr);

    // The checks and captions of opening the screen. False when loading stopped.
    bool Form_Load();
    // Empties the scan folder of bitmaps and starts the scanning program.
    void CmdCarga_Lee();
    // Reads, stores and deletes every sheet of the scan folder, then grades.
    void CmdCorregir_Pruebas();
    // Writes 0 into every cell of the working table.
    void CmdLimpiaGrilla();

    // The folder read instead of line 1 of scaner.ini (the command line's --carpeta).
    QString Carpeta_Forzada;
    // When set, a sheet removed from the folder without being stored is moved here instead of
    // being deleted (the command line keeps what it could not store).
    QString Carpeta_Apartadas;

    // Screen fields.
    QString Caption_Carga = QStringLiteral("Escanear Pruebas");
    QString Caption_Corregir = QStringLiteral("Corregir Pruebas");
    bool CmdCarga_Lee_Enabled = true;
    bool CmdCorregir_Pruebas_Enabled = true;
    int lbl_CantidadHojas = 0;
    bool lbl_CantidadHojas_Rojo = false;
    int lbl_Leidas = 0;
    QString Txt_Rut_2;
    QString Carpeta;    // File1's folder
    QString Ruta_Hoja;  // full path of the sheet in hand
    bool Error_Lectura = false;
    QString Rut_Manual;

    // Counters of a run.
    int16_t Hojas_Corregidas = 0;
    int16_t Hojas_Vistas = -1;
    bool Hubo_Imagen = false;
    int16_t Pautas_Grabadas = 0;

    // The sheet in hand as read so far (marks, form, rut, answers).
    ResultadoHoja hoja;
    Corrector c;
    ResumenCorrida resumen;

  private:
    enum class Paso { Sigue, Siguiente, Para };

    Paso Procesa_Hoja(const QString& nombre);
    Paso Registra_Hoja(LecturaHoja& l, const QString& nombre);
    void Anota_Fila(int fila, const Marcas& m);
    Paso Fallo_A(const QString& nombre);
    void Fallo_A_Aviso(const QString& nombre);
    Paso Fallo_B();
    Paso Fallo_C();
    Paso Verifica_Forma();
    Paso Dialogo_Rut();
    bool Rut_No_Existe();
    Paso Lee_Respuestas(LecturaHoja& l);
    Paso Guarda_Hoja();
    Paso Guarda_Pauta();
    bool Hay_Preguntas_Abiertas();
    bool Graba_Alumno();
    void Carga_Tabla();
    bool Verifica_Pauta_Declarada();
    QString Carpeta_Escaneo() const;
    void Fin_Corrida();
    void Sin_Correccion();
    void Fin_Pauta();
    void Retira_Hoja();
    void Elimina_Hoja(bool guardada);
    void Elimina_Pendiente();
    void Elimina_Archivo(const QString& ruta, bool guardada);
    QString Pide_Rut();
    bool Confirma_Eliminar();
    void Avisa();
    void Espera(double segundos);

    ObservadorCorrida* observador_;
    ObservadorCorrida nulo_;
    bool guardada_ = false;  // the sheet in hand has rows committed
    QString pendiente_;      // the last stored student sheet, removed once graded
};

// Alumno_Existe: true when NO student has this rut, false when one has; the run reads it so.
bool Alumno_Existe(const QString& rut);
