// Small pieces the list and settings screens are built from.
#include "platform/screens/controles.h"

#include <QAbstractButton>
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionHeader>

#include "platform/dialogos.h"
#include "platform/grilla.h"
#include "platform/screens/grilla_modelo.h"

namespace {

// Paints the grid's corner head (row 0, column 0) on the view's corner button.
class PintaEsquina : public QObject {
  public:
    PintaEsquina(QAbstractButton* boton, const Grilla& grilla) : QObject(boton), grilla_(grilla) {}

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() != QEvent::Paint) return false;
        auto* boton = static_cast<QAbstractButton*>(objeto);
        QStyleOptionHeader opcion;
        opcion.initFrom(boton);
        opcion.rect = boton->rect();
        opcion.text = grilla_.Celda(0, 0);
        opcion.textAlignment = Qt::AlignCenter;
        QPainter p(boton);
        boton->style()->drawControl(QStyle::CE_Header, &opcion, &p, boton);
        return true;
    }

  private:
    const Grilla& grilla_;
};

class FiltroTeclas : public QObject {
  public:
    FiltroTeclas(QObject* padre, std::function<int(int)> filtro)
        : QObject(padre), filtro_(std::move(filtro)) {}

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() != QEvent::KeyPress) return QObject::eventFilter(objeto, evento);
        const int codigo = Codigo(*static_cast<QKeyEvent*>(evento));
        if (codigo == 0) return false;  // not a character key: arrows, tab, delete pass
        const int queda = filtro_(codigo);
        if (queda == codigo) return false;
        if (queda == 13) QApplication::beep();
        return true;  // Enter does nothing in a single-line box
    }

  private:
    static int Codigo(const QKeyEvent& tecla) {
        if (tecla.key() == Qt::Key_Backspace) return 8;
        if (tecla.key() == Qt::Key_Return || tecla.key() == Qt::Key_Enter) return 13;
        return tecla.text().isEmpty() ? 0 : tecla.text().at(0).unicode();
    }
    std::function<int(int)> filtro_;
};

class FiltroFoco : public QObject {
  public:
    FiltroFoco(QObject* padre, std::function<void()> accion)
        : QObject(padre), accion_(std::move(accion)) {}

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() == QEvent::FocusOut) Ejecutar_Comando(accion_);
        return QObject::eventFilter(objeto, evento);
    }

  private:
    std::function<void()> accion_;
};

}  // namespace

QPushButton* Boton(QWidget* padre, const QString& nombre, const QString& texto,
                   std::function<void()> comando) {
    auto* boton = new QPushButton(texto, padre);
    boton->setObjectName(nombre);
    QObject::connect(boton, &QPushButton::clicked, padre,
                     [c = std::move(comando)] { Ejecutar_Comando(c); });
    return boton;
}

QLineEdit* Caja(QWidget* padre, const QString& nombre) {
    auto* caja = new QLineEdit(padre);
    caja->setObjectName(nombre);
    return caja;
}

void Filtra_Teclas(QLineEdit* caja, std::function<int(int)> filtro) {
    caja->installEventFilter(new FiltroTeclas(caja, std::move(filtro)));
}

void Mayusculas(QLineEdit* caja) {
    QObject::connect(caja, &QLineEdit::textEdited, caja, [caja](const QString& texto) {
        const int cursor = caja->cursorPosition();
        caja->setText(texto.toUpper());
        caja->setCursorPosition(cursor);
    });
}

void Al_Salir(QLineEdit* caja, std::function<void()> accion) {
    caja->installEventFilter(new FiltroFoco(caja, std::move(accion)));
}

QTableView* Vista_Grilla(QWidget* padre, const QString& nombre, Grilla& grilla,
                         std::function<void(int)> al_pulsar) {
    auto* vista = new QTableView(padre);
    vista->setObjectName(nombre);
    vista->setModel(new GrillaModelo(grilla, vista));
    vista->setSelectionBehavior(QAbstractItemView::SelectRows);
    vista->setSelectionMode(QAbstractItemView::SingleSelection);
    vista->setEditTriggers(QAbstractItemView::NoEditTriggers);
    vista->verticalHeader()->setDefaultSectionSize(22);
    if (al_pulsar)
        QObject::connect(vista, &QTableView::clicked, padre, [al_pulsar](const QModelIndex& i) {
            Ejecutar_Comando([&] { al_pulsar(i.row() + 1); });
        });
    return vista;
}

void Esquina_Grilla(QTableView* vista, const Grilla& grilla) {
    for (auto* boton : vista->findChildren<QAbstractButton*>())
        if (boton->parent() == vista) boton->installEventFilter(new PintaEsquina(boton, grilla));
}

QVBoxLayout* Columna_Botones(QWidget* padre, const std::vector<DefBoton>& botones) {
    auto* columna = new QVBoxLayout;
    for (const DefBoton& b : botones)
        columna->addWidget(
            Boton(padre, QString::fromUtf8(b.nombre), QString::fromUtf8(b.texto), b.comando));
    columna->addStretch();
    return columna;
}
