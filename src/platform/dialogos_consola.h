// The boxes of a headless command: each box is printed with its title, and answered by a
// fixed policy that never deletes stored data: a question gets No (or Cancel), an input box
// gets nothing, a file dialog gets nothing. Answers can be set ahead per title.
#pragma once

#include <QMap>
#include <QTextStream>

#include "platform/dialogos.h"

class DialogosConsola : public Dialogos {
public:
    explicit DialogosConsola(QTextStream& salida) : salida_(salida) {}

    // From now on a box with this title is answered `respuesta` (vbYes, vbOK, ...).
    void Responde(const QString& titulo, int respuesta) { respuestas_[titulo] = respuesta; }
    // From now on an input box with this title is answered `texto`.
    void Escribe(const QString& titulo, const QString& texto) { textos_[titulo] = texto; }

    int MsgBox(const QString& texto, int estilo, const QString& titulo) override;
    QString InputBox(const QString& pregunta, const QString& titulo, const QString& defecto) override;
    QString AbrirArchivo(const QString& titulo, const QString& filtro) override;
    QString GuardarArchivo(const QString& titulo, const QString& filtro, const QString& nombre) override;
    QString Frm_SoloRrut(const QString& curso) override;

private:
    QTextStream& salida_;
    QMap<QString, int> respuestas_;
    QMap<QString, QString> textos_;
};

// The answer the policy gives to a box of this style when nothing was set ahead.
int Respuesta_Por_Defecto(int estilo);
