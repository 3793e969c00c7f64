// The rut: the Chilean national number with its check character, handled as text.
#pragma once

#include <QString>

// True when the last character is the check character of the body before the first "-".
bool Fnc_Valida_Rut(const QString& rut);

// The rut as it is stored and looked up: the check letter K in capitals.
QString Rut_Mayuscula(const QString& rut);

// The rut of a body with its right check character: "12345678-5".
QString Rut_Con_Digito(qint64 cuerpo);

// Key filter of a rut box: the hyphen, k, K, digits and backspace pass; any other key is
// turned into Enter (13), which then does nothing. `pita` tells whether the machine beeps.
int Filtra_Tecla_Rut(int codigo, bool* pita = nullptr);
