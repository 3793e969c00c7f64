// Printing a Grilla as a plain table.
#include "platform/screens/impresion.h"

#include <QApplication>
#include <QPageLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <algorithm>
#include <vector>

#include "platform/grilla.h"

namespace {

// Column widths from the longest text of each column, heads included.
std::vector<int> Anchos(const Grilla& g, const QFontMetrics& m) {
    std::vector<int> anchos(g.MaxCols() + 1, 0);
    for (int r = 0; r <= g.MaxRows(); ++r)
        for (int c = 0; c <= g.MaxCols(); ++c)
            anchos[c] = std::max(anchos[c], m.horizontalAdvance(g.Celda(r, c)) + 8);
    return anchos;
}

void Pinta(QPrinter& impresora, const Grilla& g) {
    QPainter p(&impresora);
    const QFontMetrics m(p.font());
    const std::vector<int> anchos = Anchos(g, m);
    const int alto = m.height() + 6;
    const QRect pagina = p.viewport();
    int y = 0;
    for (int r = 0; r <= g.MaxRows(); ++r) {
        if (y + alto > pagina.height()) {
            impresora.newPage();
            y = 0;
        }
        int x = 0;
        for (int c = 0; c <= g.MaxCols(); ++c) {
            if (anchos[c] <= 8) continue;
            const QRect celda(x, y, anchos[c], alto);
            p.drawRect(celda);
            p.drawText(celda.adjusted(4, 0, -4, 0), Qt::AlignVCenter | Qt::AlignLeft,
                       g.Celda(r, c));
            x += anchos[c];
        }
        y += alto;
    }
}

}  // namespace

bool Imprime_Grilla(const Grilla& grilla, const QString& titulo, int orientacion,
                    const MargenesImpresion& margenes, QPrinter* impresora) {
    QPrinter propia(QPrinter::HighResolution);
    QPrinter& destino = impresora ? *impresora : propia;
    destino.setDocName(titulo);
    destino.setPageOrientation(orientacion == 2 ? QPageLayout::Landscape : QPageLayout::Portrait);
    const auto mm = [](int twips) { return twips * 25.4 / 1440; };
    destino.setPageMargins(QMarginsF(mm(margenes.izquierdo), mm(margenes.superior),
                                     mm(margenes.derecho), mm(margenes.inferior)),
                           QPageLayout::Millimeter);
    if (!impresora) {
        QPrintDialog dialogo(&destino, QApplication::activeWindow());
        if (dialogo.exec() != QDialog::Accepted) return false;
    }
    Pinta(destino, grilla);
    return true;
}
