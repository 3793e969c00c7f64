// The operator's boxes on Qt Widgets.
#pragma once

#include <functional>

#include "platform/dialogos.h"

class DialogosQt : public Dialogos {
public:
    // The screen that answers Frm_SoloRrut; the application installs it.
    std::function<QString(const QString&)> pantalla_solo_rut;

    int MsgBox(const QString& texto, int estilo, const QString& titulo) override;
    QString InputBox(const QString& pregunta, const QString& titulo, const QString& defecto) override;
    QString AbrirArchivo(const QString& titulo, const QString& filtro) override;
    QString GuardarArchivo(const QString& titulo, const QString& filtro, const QString& nombre) override;
    QString Frm_SoloRrut(const QString& curso) override;
};
