// The two-row column header with group titles.
#include "platform/screens/cabecera_grupos.h"

#include <QPainter>

CabeceraGrupos::CabeceraGrupos(QWidget* padre, QStringList grupos)
    : QHeaderView(Qt::Horizontal, padre), grupos_(std::move(grupos)) {
    setDefaultAlignment(Qt::AlignCenter);
}

void CabeceraGrupos::Fija(QStringList grupos) {
    grupos_ = std::move(grupos);
    viewport()->update();
}

QSize CabeceraGrupos::sizeHint() const {
    QSize s = QHeaderView::sizeHint();
    s.setHeight(2 * fontMetrics().height() + 12);
    return s;
}

void CabeceraGrupos::paintSection(QPainter* p, const QRect& rect, int columna) const {
    const QString grupo = grupos_.value(columna);
    if (grupo.isEmpty()) return QHeaderView::paintSection(p, rect, columna);
    const int mitad = rect.height() / 2;
    p->save();
    QHeaderView::paintSection(p, rect.adjusted(0, mitad, 0, 0), columna);
    p->restore();
    // The group cell covers its whole run; each section paints its own part of it.
    int primera = columna, ultima = columna;
    while (primera > 0 && grupos_.value(primera - 1) == grupo) --primera;
    while (ultima + 1 < count() && grupos_.value(ultima + 1) == grupo) ++ultima;
    int ancho = 0;
    for (int c = primera; c <= ultima; ++c) ancho += sectionSize(c);
    QStyleOptionHeader op;
    initStyleOption(&op);
    op.rect = QRect(sectionViewportPosition(primera), rect.top(), ancho, mitad);
    op.text = grupo;
    op.textAlignment = Qt::AlignCenter;
    p->save();
    p->setClipRect(QRect(rect.left(), rect.top(), rect.width(), mitad));
    style()->drawControl(QStyle::CE_Header, &op, p, this);
    p->restore();
}
