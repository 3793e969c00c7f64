// Printing a Grilla: the whole grid, heads included, as a plain table on the page.
#pragma once

#include <QString>

class Grilla;
class QPrinter;

// Margins in twips (1440 to the inch).
struct MargenesImpresion {
    int izquierdo, derecho, superior, inferior;
};

// Orientation code 1 is portrait, 2 landscape. Without a printer the operator picks one in the
// print dialog; false when that dialog is cancelled.
bool Imprime_Grilla(const Grilla& grilla, const QString& titulo, int orientacion,
                    const MargenesImpresion& margenes, QPrinter* impresora = nullptr);
