// The chart layer: the chart's data and the picture asked of the installed drawing.
#include "platform/grafico.h"

#include "platform/error_ejecucion.h"

namespace {
DibujoGrafico& Dibujo() {
    static DibujoGrafico dibujo;
    return dibujo;
}
}  // namespace

void Instala_Dibujo_Graficos(DibujoGrafico dibujo) {
    Dibujo() = std::move(dibujo);
}

void Grafico::ChartData(const QStringList& etiquetas_filas,
                        const std::vector<std::vector<double>>& filas) {
    etiquetas = etiquetas_filas;
    datos = filas;
}

void Grafico::Refresh() const {
    if (al_refrescar) al_refrescar();
}

void Grafico::Guarda_Imagen(const QString& ruta, QSize tamano) const {
    if (!Dibujo()) throw ErrorEjecucion(QStringLiteral("No hay gráfico que copiar"));
    if (!Dibujo()(*this, tamano).save(ruta, "PNG"))
        throw ErrorEjecucion(QStringLiteral("No se puede grabar la imagen ") + ruta);
}
