// The operator's boxes on Qt Widgets.
#pragma once

#include "platform/dialogos.h"

class DialogosQt : public Dialogos {
public:
    int MsgBox(const QString& texto, int estilo, const QString& titulo) override;
    QString InputBox(const QString& pregunta, const QString& titulo, const QString& defecto) override;
    QString AbrirArchivo(const QString& titulo, const QString& filtro) override;
    QString GuardarArchivo(const QString& titulo, const QString& filtro, const QString& nombre) override;
};
