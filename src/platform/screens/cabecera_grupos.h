// A two-row column header: a group title over each run of columns that share it (a pair of
// count and percentage, the five columns of an axis), each column's own head below. Columns
// without a title show their head over both rows.
#pragma once

#include <QHeaderView>
#include <QStringList>

class CabeceraGrupos : public QHeaderView {
    Q_OBJECT
  public:
    explicit CabeceraGrupos(QWidget* padre, QStringList grupos = {});
    // The group title of each view column, from 0.
    void Fija(QStringList grupos);
    QSize sizeHint() const override;

  protected:
    void paintSection(QPainter* p, const QRect& rect, int columna) const override;

  private:
    QStringList grupos_;
};
