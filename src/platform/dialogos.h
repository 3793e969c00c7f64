// The one way any code talks to the operator. The application installs the Qt boxes, the
// tests a scripted stand-in, the command line a policy that prints each box and answers alone.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

// Buttons and icon of a box, added together as the system writes them (vbOKCancel + vbQuestion).
enum EstiloCaja : int {
    vbOKOnly = 0,
    vbOKCancel = 1,
    vbAbortRetryIgnore = 2,
    vbYesNoCancel = 3,
    vbYesNo = 4,
    vbRetryCancel = 5,
    vbCritical = 16,
    vbQuestion = 32,
    vbExclamation = 48,
    vbInformation = 64,
};

// What a box gives back.
enum RespuestaCaja : int {
    vbOK = 1,
    vbCancel = 2,
    vbAbort = 3,
    vbRetry = 4,
    vbIgnore = 5,
    vbYes = 6,
    vbNo = 7,
};

class Dialogos {
public:
    virtual ~Dialogos() = default;

    // A message box: `estilo` is buttons plus icon; the result is the button pressed.
    virtual int MsgBox(const QString& texto, int estilo, const QString& titulo) = 0;
    // An input box: the typed text, or "" when cancelled.
    virtual QString InputBox(const QString& pregunta, const QString& titulo,
                             const QString& defecto) = 0;
    // File dialogs: the chosen path, or "" when cancelled.
    virtual QString AbrirArchivo(const QString& titulo, const QString& filtro) = 0;
    virtual QString GuardarArchivo(const QString& titulo, const QString& filtro,
                                   const QString& nombre) = 0;
    // The modal list "Seleccione Rut Alumno" of a course's students: the rut chosen or typed
    // by the operator (Rut_Manual), "" when none.
    virtual QString Frm_SoloRrut(const QString& curso) = 0;
};

// The installed implementation; a silent refusing one until something is installed.
Dialogos& dialogos();
void Instala_Dialogos(std::unique_ptr<Dialogos> nuevos);

// The words of a box split into the lines the system joins with a carriage return.
QString Lineas(const QStringList& lineas);

// Command boundary: runs one button or menu command; an unexpected failure shows the critical
// box "Error de ejecución" with its text and ends only that command. True when it ran through.
bool Ejecutar_Comando(const std::function<void()>& comando);
