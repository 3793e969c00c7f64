// Scripted boxes for tests: every box is recorded (kind, title, text, style); answers come
// from a script in order, and a box the script did not expect fails the test.
#pragma once

#include <deque>
#include <vector>

#include "platform/dialogos.h"

class DialogosGuion : public Dialogos {
public:
    struct Caja {
        QString tipo;  // "MsgBox", "InputBox", "AbrirArchivo", "GuardarArchivo"
        QString titulo;
        QString texto;
        int estilo = 0;
    };

    // The next box must be a message box titled `titulo`; it is answered `respuesta`.
    void Espera(const QString& titulo, int respuesta = vbOK);
    // The next box must be an input box titled `titulo`; it is answered `texto`.
    void EsperaEntrada(const QString& titulo, const QString& texto);
    // The next box must be a file dialog; it is answered `ruta`.
    void EsperaArchivo(const QString& ruta);
    // The next box must be the student list; it is answered `rut` (Rut_Manual).
    void EsperaSoloRut(const QString& rut);

    // True when every scripted answer has been used.
    bool Agotado() const { return guion_.empty(); }
    std::vector<Caja> cajas;

    int MsgBox(const QString& texto, int estilo, const QString& titulo) override;
    QString InputBox(const QString& pregunta, const QString& titulo, const QString& defecto) override;
    QString AbrirArchivo(const QString& titulo, const QString& filtro) override;
    QString GuardarArchivo(const QString& titulo, const QString& filtro, const QString& nombre) override;
    QString Frm_SoloRrut(const QString& curso) override;

private:
    struct Paso {
        QString tipo;
        QString titulo;
        int respuesta = vbOK;
        QString texto;
    };
    Paso Siguiente(const Caja& caja);
    std::deque<Paso> guion_;
};

// Installs a fresh scripted implementation and gives it to the test.
DialogosGuion& Instala_Guion();
