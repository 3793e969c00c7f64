// The main window and its menu.
#include "app/screens/mdi_main.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>

#include "app/menu_principal.h"
#include "grading/screens/frm_correc_pru.h"
#include "masters/screens/frm_alumnos.h"
#include "masters/screens/frm_asignatura.h"
#include "masters/screens/frm_cursos.h"
#include "masters/screens/frm_profesores.h"
#include "platform/dialogos.h"

MdiMain::MdiMain(QWidget* padre) : QMainWindow(padre), area_(new QMdiArea(this)) {
    setObjectName(QStringLiteral("MdiMain"));
    setWindowTitle(QStringLiteral("Principal"));
    area_->setBackground(QColor(0x2f, 0x4f, 0x6f));
    setCentralWidget(area_);
    fabricas_[QStringLiteral("frmCorrecPru")] = [] { return new frmCorrecPru; };
    fabricas_[QStringLiteral("FrmAlumnos")] = [] { return new FrmAlumnos; };
    fabricas_[QStringLiteral("FrmProfesores")] = [] { return new FrmProfesores; };
    fabricas_[QStringLiteral("FrmCursos")] = [] { return new FrmCursos; };
    fabricas_[QStringLiteral("FrmAsignatura")] = [] { return new FrmAsignatura; };
    Construye_Menu();
    resize(1200, 800);
}

void MdiMain::Construye_Menu() {
    const auto& menu = Menu_Principal();
    std::vector<QMenu*> padres;  // the open menu at each nesting level
    for (size_t i = 0; i < menu.size(); ++i) {
        const EntradaMenu& e = menu[i];
        const bool tiene_hijos = i + 1 < menu.size() && menu[i + 1].nivel > e.nivel;
        padres.resize(e.nivel);
        QAction* accion = nullptr;
        if (e.titulo == QLatin1String("-")) {
            accion = padres.back()->addSeparator();
        } else if (e.nivel == 0 && !tiene_hijos) {
            accion = menuBar()->addAction(e.titulo);
        } else if (tiene_hijos) {
            QMenu* sub = e.nivel == 0 ? menuBar()->addMenu(e.titulo) : padres.back()->addMenu(e.titulo);
            padres.push_back(sub);
            accion = sub->menuAction();
        } else {
            accion = padres.back()->addAction(e.titulo);
        }
        accion->setObjectName(e.control);
        accion->setVisible(e.visible);
        acciones_[e.control] = accion;
        if (!e.pantalla.isEmpty()) accion->setEnabled(fabricas_.contains(e.pantalla));
        if (!e.pantalla.isEmpty() || e.control == QLatin1String("mnu_salir"))
            connect(accion, &QAction::triggered, this, [this, c = e.control] { Ejecuta(c); });
    }
}

void MdiMain::Ejecuta(const QString& control) {
    Ejecutar_Comando([&] {
        if (control == QLatin1String("mnu_salir")) return mnu_salir_Click();
        for (const EntradaMenu& e : Menu_Principal())
            if (e.control == control) Muestra_Pantalla(e.pantalla);
    });
}

QWidget* MdiMain::Pantalla(const QString& nombre) const {
    QMdiSubWindow* s = abiertas_.value(nombre);
    return s ? s->widget() : nullptr;
}

QWidget* MdiMain::Muestra_Pantalla(const QString& nombre) {
    if (QMdiSubWindow* abierta = abiertas_.value(nombre)) {
        area_->setActiveSubWindow(abierta);
        abierta->raise();
        return abierta->widget();
    }
    if (!fabricas_.contains(nombre)) return nullptr;
    QWidget* pantalla = fabricas_[nombre]();
    const QSize tamano = pantalla->size();  // the size the screen asked for
    pantalla->setAttribute(Qt::WA_DeleteOnClose);
    QMdiSubWindow* sub = area_->addSubWindow(pantalla);
    sub->setAttribute(Qt::WA_DeleteOnClose);
    abiertas_[nombre] = sub;
    sub->show();
    sub->resize(sub->size() - pantalla->size() + tamano);
    return pantalla;
}

void MdiMain::mnu_salir_Click() {
    salio_ = true;
    QApplication::exit(0);
}

void MdiMain::closeEvent(QCloseEvent* evento) {
    if (salio_) return evento->accept();
    const int r = dialogos().MsgBox(QStringLiteral("Desea cerrar su aplicación"), vbOKCancel + vbQuestion,
                                    QStringLiteral("Sistema ZORTA 2016"));
    if (r == vbOK) {
        salio_ = true;
        evento->accept();
    } else {
        evento->ignore();
    }
}
