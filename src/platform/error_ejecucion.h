// An unexpected failure of a command: a store error, an overflow, a file that can't be opened.
// The command boundary (Ejecutar_Comando) shows it to the operator and the program goes on.
#pragma once

#include <QString>
#include <stdexcept>

class ErrorEjecucion : public std::runtime_error {
public:
    explicit ErrorEjecucion(const QString& texto)
        : std::runtime_error(texto.toStdString()), texto_(texto) {}
    const QString& texto() const { return texto_; }

private:
    QString texto_;
};
