// The chart layer: the chart's data and its picture.
#include "platform/grafico.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "platform/error_ejecucion.h"

namespace {

size_t Series(const Grafico& g) {
    size_t n = 0;
    for (const auto& fila : g.datos) n = std::max(n, fila.size());
    return n;
}

double Valor(const Grafico& g, size_t fila, size_t s) {
    return s < g.datos[fila].size() ? g.datos[fila][s] : 0;
}

// The top of the value axis: 1, 2 or 5 times a power of ten, at least the largest value.
double Tope(const Grafico& g) {
    double m = 0;
    for (const auto& fila : g.datos)
        for (double v : fila) m = std::max(m, v);
    if (m <= 0) return 1;
    const double potencia = std::pow(10.0, std::floor(std::log10(m)));
    for (double f : {1.0, 2.0, 5.0, 10.0})
        if (f * potencia >= m) return f * potencia;
    return 10 * potencia;
}

QString Texto_Eje(double v) {
    return QString::number(v, 'g', 6);
}

void Dibuja_Ejes(QPainter& p, const QRectF& area, double tope) {
    p.setPen(QColor(0xd0, 0xd0, 0xd0));
    constexpr int kMarcas = 5;
    for (int k = 0; k <= kMarcas; ++k) {
        const double y = area.bottom() - area.height() * k / kMarcas;
        p.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
        p.setPen(Qt::black);
        p.drawText(QRectF(0, y - 8, area.left() - 6, 16), Qt::AlignRight | Qt::AlignVCenter,
                   Texto_Eje(tope * k / kMarcas));
        p.setPen(QColor(0xd0, 0xd0, 0xd0));
    }
    p.setPen(Qt::black);
    p.drawLine(area.bottomLeft(), area.bottomRight());
    p.drawLine(area.bottomLeft(), area.topLeft());
}

// Row labels under their slots, upright when they don't fit across.
void Dibuja_Etiquetas(QPainter& p, const Grafico& g, const QRectF& area, double ancho) {
    const QFontMetricsF m(p.font());
    bool caben = true;
    for (const QString& e : g.etiquetas) caben = caben && m.horizontalAdvance(e) < ancho - 2;
    for (qsizetype i = 0; i < g.etiquetas.size() && i < qsizetype(g.datos.size()); ++i) {
        const double x = area.left() + ancho * (i + 0.5);
        if (caben) {
            p.drawText(QRectF(x - ancho / 2, area.bottom() + 4, ancho, m.height()),
                       Qt::AlignHCenter, g.etiquetas[i]);
            continue;
        }
        p.save();
        p.translate(x + m.ascent() / 2, area.bottom() + 4);
        p.rotate(-90);
        p.drawText(QPointF(-m.horizontalAdvance(g.etiquetas[i]), 0), g.etiquetas[i]);
        p.restore();
    }
}

void Dibuja_Barras(QPainter& p, const Grafico& g, const QRectF& area, double ancho, double tope) {
    const size_t n = Series(g);
    const double barra = ancho * 0.8 / std::max<size_t>(n, 1);
    for (size_t f = 0; f < g.datos.size(); ++f)
        for (size_t s = 0; s < n; ++s) {
            const double alto = area.height() * std::clamp(Valor(g, f, s) / tope, 0.0, 1.0);
            const double x = area.left() + ancho * f + ancho * 0.1 + barra * s;
            p.fillRect(QRectF(x, area.bottom() - alto, barra, alto), Color_Serie(s));
        }
}

void Dibuja_Lineas(QPainter& p, const Grafico& g, const QRectF& area, double ancho, double tope) {
    for (size_t s = 0; s < Series(g); ++s) {
        QPainterPath linea;
        for (size_t f = 0; f < g.datos.size(); ++f) {
            const QPointF punto(area.left() + ancho * (f + 0.5),
                                area.bottom() - area.height() * Valor(g, f, s) / tope);
            f == 0 ? linea.moveTo(punto) : linea.lineTo(punto);
        }
        p.setPen(QPen(Color_Serie(s), 3));
        p.drawPath(linea);
    }
}

void Dibuja_Leyenda(QPainter& p, const Grafico& g, double izquierda) {
    double x = izquierda;
    p.setPen(Qt::black);
    for (qsizetype s = 0; s < g.series.size(); ++s) {
        p.fillRect(QRectF(x, 8, 12, 12), Color_Serie(s));
        const QString nombre = g.series[s].trimmed();
        p.drawText(QPointF(x + 16, 19), nombre);
        x += 28 + QFontMetricsF(p.font()).horizontalAdvance(nombre);
    }
}

}  // namespace

QColor Color_Serie(size_t s) {
    static const QColor colores[] = {QColor(0x20, 0x9f, 0xdf), QColor(0x99, 0xca, 0x53),
                                     QColor(0xf6, 0xa6, 0x25), QColor(0x6d, 0x5f, 0xd5),
                                     QColor(0xbf, 0x59, 0x3e)};
    return colores[s % std::size(colores)];
}

void Grafico::ChartData(const QStringList& etiquetas_filas,
                        const std::vector<std::vector<double>>& filas) {
    etiquetas = etiquetas_filas;
    datos = filas;
}

void Grafico::Refresh() const {
    if (al_refrescar) al_refrescar();
}

QImage Dibuja_Grafico(const Grafico& g, QSize tamano) {
    QImage imagen(tamano, QImage::Format_RGB32);
    imagen.fill(Qt::white);
    QPainter p(&imagen);
    p.setRenderHint(QPainter::Antialiasing);
    QFont letra = p.font();
    letra.setPixelSize(12);
    p.setFont(letra);
    const QFontMetricsF m(letra);
    double largo = 0;
    for (const QString& e : g.etiquetas) largo = std::max(largo, m.horizontalAdvance(e));
    const double abajo = std::min(largo, tamano.height() / 3.0) + m.height() + 8;
    const QRectF area(56, 32, tamano.width() - 72, tamano.height() - 32 - abajo);
    const double tope = Tope(g);
    Dibuja_Ejes(p, area, tope);
    if (g.datos.empty()) return imagen;
    const double ancho = area.width() / g.datos.size();
    if (g.chartType == GraficoLineas2D)
        Dibuja_Lineas(p, g, area, ancho, tope);
    else
        Dibuja_Barras(p, g, area, ancho, tope);
    Dibuja_Etiquetas(p, g, area, ancho);
    Dibuja_Leyenda(p, g, area.left());
    return imagen;
}

void Grafico::Guarda_Imagen(const QString& ruta, QSize tamano) const {
    if (!Dibuja_Grafico(*this, tamano).save(ruta, "PNG"))
        throw ErrorEjecucion(QStringLiteral("No se puede grabar la imagen ") + ruta);
}
