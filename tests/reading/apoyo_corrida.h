// Helpers of the reading run tests: a test with its keys and students on a temporary store,
// a scan folder named by scaner.ini, sheets drawn into it, and a witness of the run's calls.
#pragma once

#include <memory>
#include <string>

#include "platform/error_ejecucion.h"
#include "reading/corrida_lectura.h"
#include "reading/generador_hoja.h"
#include "support/base_temporal.h"

// Records what the run asks of the screens around it, in order.
struct Testigo : ObservadorCorrida {
    QStringList llamadas;  // "Descarga_Lista", "Cierra_Y_Muestra_Lista"
    int hojas = 0;
    int avisos = 0;
    void Hoja_En_Mano(const CorridaLectura&, const Imagen&) override { ++hojas; }
    // A dialogue that never ends (an unscripted box answers "") stops the test's run.
    void Actualiza(const CorridaLectura&) override {
        if (++avisos > 20000) throw ErrorEjecucion(QStringLiteral("la corrida no termina"));
    }
    void Descarga_Lista() override { llamadas << QStringLiteral("Descarga_Lista"); }
    void Cierra_Y_Muestra_Lista() override { llamadas << QStringLiteral("Cierra_Y_Muestra_Lista"); }
};

// "cuerpo-dv" with the right check character.
QString Rut_Valido(int cuerpo);
// The nine rut columns of a sheet for a rut: its characters without the hyphen.
QString Columnas_Rut(const QString& rut);
// A student sheet of `letras` ('A'..'E', '.' none, 'N' two marks) for a form and a rut.
DisenoHoja Hoja_Alumno(const std::string& letras, int forma, const QString& rut,
                       int distancia = 852);
// The store codes of a student's letters: A-E 1-5, '.' 6, 'N' 7.
QString Codigos_Alumno(const std::string& letras);

class CorridaPrueba : public BaseArrancada {
  public:
    static constexpr int kPrueba = 7;

    void SetUp() override;
    // Leaves unscripted boxes answered alone again, for the tests that do not script them.
    void TearDown() override;
    // A fresh data folder and store for the next case of a table.
    void Reinicia();
    // Test 7, "Historia", course "1A": its row, the shared values of choosing it, and no key.
    void Prueba(int formas, int preguntas, const QString& ingreso_pauta = QStringLiteral("S"));
    // A key stored directly: one letter a question.
    void Pauta(int forma, const std::string& letras);
    void Alumno(const QString& rut, const QString& curso = QStringLiteral("1A"));
    // Draws a sheet into the scan folder.
    void Hoja(const QString& nombre, const DisenoHoja& d);
    // Opens the screen's run and presses "Corregir Pruebas" at the command boundary.
    bool Corre();
    void Ejecuta(const QString& sql, const QVariantList& p = {});
    // A student's stored codes of a form, in question order.
    QString Codigos(const QString& rut, int forma);
    // "buenas/malas/omitidas/nulas/porcentaje/nota/forma" of each result row of a rut.
    QStringList Resultado(const QString& rut);
    QStringList En_Carpeta() const;
    // Each box as "titulo|texto".
    QStringList Cajas() const;

    QString escaneo;
    Testigo testigo;
    std::unique_ptr<CorridaLectura> corrida;
};
