// The main window and its menu.
#include "app/screens/mdi_main.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QUrl>
#include <memory>

#include "analysis/screens/frm_analisis_cua.h"
#include "analysis/screens/frm_habili_objet.h"
#include "analysis/screens/frm_por_pregunta.h"
#include "analysis/screens/frm_sep.h"
#include "app/estado.h"
#include "app/menu_principal.h"
#include "app/screens/acerca_de.h"
#include "grading/screens/frm_correc_pru.h"
#include "grading/screens/frm_correccion.h"
#include "grading/screens/frm_eva_correcion.h"
#include "grading/screens/frm_mod_nota.h"
#include "grading/screens/frm_modf_rut.h"
#include "grading/screens/frm_psu.h"
#include "grading/screens/frm_simce.h"
#include "masters/screens/frm_alumnos.h"
#include "masters/screens/frm_asignatura.h"
#include "masters/screens/frm_clean_base.h"
#include "masters/screens/frm_cursos.h"
#include "masters/screens/frm_grises.h"
#include "masters/screens/frm_habilidad.h"
#include "masters/screens/frm_logros.h"
#include "masters/screens/frm_mant_psu.h"
#include "masters/screens/frm_mant_simce.h"
#include "masters/screens/frm_nivel_eva.h"
#include "masters/screens/frm_profesores.h"
#include "masters/screens/frm_puntajes_psu.h"
#include "masters/screens/frm_tab_eje_tema.h"
#include "platform/dialogos.h"
#include "platform/screens/navegacion.h"
#include "reading/screens/frm_imagen.h"
#include "setup/screens/frm_gene_pru.h"
#include "setup/screens/frm_gene_psu_pru.h"
#include "setup/screens/frm_gene_simce_pru.h"
#include "setup/screens/frm_ing_manual.h"
#include "setup/screens/frm_matriz_resp_correc.h"
#include "setup/screens/frm_opc_pautas.h"

MdiMain::MdiMain(QWidget* padre) : QMainWindow(padre), area_(new QMdiArea(this)) {
    setObjectName(QStringLiteral("MdiMain"));
    setWindowTitle(QStringLiteral("Principal"));
    area_->setBackground(QColor(0x2f, 0x4f, 0x6f));
    setCentralWidget(area_);
    fabricas_[QStringLiteral("frmCorrecPru")] = [] { return new frmCorrecPru; };
    fabricas_[QStringLiteral("ACERCA_de")] = [] { return new ACERCA_de; };
    fabricas_[QStringLiteral("FrmImagen")] = [] { return new FrmImagen; };
    fabricas_[QStringLiteral("FrmGenePru")] = [] { return new FrmGenePru; };
    fabricas_[QStringLiteral("FrmGenePsuPru")] = [] { return new FrmGenePsuPru; };
    fabricas_[QStringLiteral("FrmGeneSimcePru")] = [] { return new FrmGeneSimcePru; };
    fabricas_[QStringLiteral("FrmIngManual")] = [] { return new FrmIngManual; };
    fabricas_[QStringLiteral("FrmOPCPautas")] = [] { return new FrmOPCPautas; };
    fabricas_[QStringLiteral("FrmMatrizRespCorrec")] = [] { return new FrmMatrizRespCorrec; };
    modales_[QStringLiteral("FrmModfRut")] = [this]() -> QDialog* {
        auto* lista = qobject_cast<frmCorrecPru*>(Pantalla(QStringLiteral("frmCorrecPru")));
        return new FrmModfRut(lista ? &lista->SprResulprucargada : nullptr, this);
    };
    fabricas_[QStringLiteral("FrmAlumnos")] = [] { return new FrmAlumnos; };
    fabricas_[QStringLiteral("FrmProfesores")] = [] { return new FrmProfesores; };
    fabricas_[QStringLiteral("FrmCursos")] = [] { return new FrmCursos; };
    fabricas_[QStringLiteral("FrmAsignatura")] = [] { return new FrmAsignatura; };
    fabricas_[QStringLiteral("FrmTabEjeTema")] = [] { return new FrmTabEjeTema; };
    fabricas_[QStringLiteral("FrmHabilidad")] = [] { return new FrmHabilidad; };
    fabricas_[QStringLiteral("FrmNivelEva")] = [] { return new FrmNivelEva; };
    fabricas_[QStringLiteral("Frm_Logros")] = [] { return new Frm_Logros; };
    fabricas_[QStringLiteral("Frm_Grises")] = [] { return new Frm_Grises; };
    fabricas_[QStringLiteral("FrmAnalisis_Cua")] = [] { return new FrmAnalisis_Cua; };
    fabricas_[QStringLiteral("FrmPorPregunta")] = [] { return new FrmPorPregunta; };
    fabricas_[QStringLiteral("FrmHabiliObjet")] = [] { return new FrmHabiliObjet; };
    fabricas_[QStringLiteral("FrmSEP")] = [] { return new FrmSEP; };
    fabricas_[QStringLiteral("Frm_Mod_Nota")] = [] { return new Frm_Mod_Nota; };
    fabricas_[QStringLiteral("Frm_Correccion")] = [] { return new Frm_Correccion; };
    fabricas_[QStringLiteral("FrmEvaCorrecion")] = [] { return new FrmEvaCorrecion; };
    fabricas_[QStringLiteral("FrmCleanBase")] = [] { return new FrmCleanBase; };
    fabricas_[QStringLiteral("FrmMantPSU")] = [] { return new FrmMantPSU; };
    fabricas_[QStringLiteral("frmPuntajesPSU")] = [] { return new frmPuntajesPSU; };
    fabricas_[QStringLiteral("FrmMantSimce")] = [] { return new FrmMantSimce; };
    fabricas_[QStringLiteral("FrmSIMCE")] = [] { return new FrmSIMCE; };
    fabricas_[QStringLiteral("FrmPsu")] = [] { return new FrmPsu; };
    Construye_Menu();
    resize(1200, 800);
    navegacion().muestra = [this](const QString& n) { return Muestra_Pantalla(n); };
    navegacion().modal = [this](const QString& n) { Muestra_Modal(n); };
    navegacion().descarga = [this](const QString& n) { Descarga(n); };
    navegacion().abierta = [this](const QString& n) { return Pantalla(n); };
}

MdiMain::~MdiMain() {
    navegacion() = Navegacion{};
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
            QMenu* sub =
                e.nivel == 0 ? menuBar()->addMenu(e.titulo) : padres.back()->addMenu(e.titulo);
            padres.push_back(sub);
            accion = sub->menuAction();
        } else {
            accion = padres.back()->addAction(e.titulo);
        }
        accion->setObjectName(e.control);
        accion->setVisible(e.visible);
        acciones_[e.control] = accion;
        if (!e.pantalla.isEmpty()) accion->setEnabled(fabricas_.contains(e.pantalla));
        if (!e.pantalla.isEmpty() || !Enlace(e.control).isEmpty() ||
            e.control == QLatin1String("mnu_salir"))
            connect(accion, &QAction::triggered, this, [this, c = e.control] { Ejecuta(c); });
    }
}

namespace {

// The flags each command sets before its screen loads.
const QMap<QString, std::function<void(Estado&)>>& Banderas() {
    static const QMap<QString, std::function<void(Estado&)>> b = {
        {"nme_nue_correc",
         [](Estado& e) {
             e.Seteo_Hoja = false, e.Corrige_Pruebas = true, e.Agrega_Actual = false;
         }},
        {"mnu_agre_actual",
         [](Estado& e) { e.Seteo_Hoja = false, e.Corrige_Pruebas = true, e.Agrega_Actual = true; }},
        {"MnuSeteo", [](Estado& e) { e.Seteo_Hoja = true; }},
        {"Mnu_Eje", [](Estado& e) { e.Tipo_Analisis = QStringLiteral("EJE TEMATICO"); }},
        {"Mnu_Habilidades", [](Estado& e) { e.Tipo_Analisis = QStringLiteral("HABILIDAD"); }},
        {"Mnu_Correccion", [](Estado& e) { e.Modo_Correccion = QStringLiteral("Modificacion"); }},
        {"Mnu_Eliminar", [](Estado& e) { e.Modo_Correccion = QStringLiteral("Eliminacion"); }},
        {"Mnu_Mant_PSU", [](Estado& e) { e.Mant_PSU = true; }},
        {"MMnu_Mant_PSu",
         [](Estado& e) {
             e.Mant_PSU = false, e.Puntajes_SIMCE = false, e.Mant_SIMCE = false,
             e.Puntajes_PSU = true;
         }},
        {"MnuSimce1",
         [](Estado& e) {
             e.Mant_PSU = false, e.Puntajes_PSU = false, e.Mant_SIMCE = true,
             e.Puntajes_SIMCE = false;
         }},
        {"MnuPuntajesSIMCE",
         [](Estado& e) {
             e.Mant_SIMCE = true, e.Puntajes_SIMCE = true, e.Mant_PSU = false,
             e.Puntajes_PSU = false;
         }},
    };
    return b;
}

}  // namespace

QString MdiMain::Enlace(const QString& control) {
    static const QMap<QString, QString> enlaces = {
        {"Mnu_Corrector", "https://www.zorta.cl/descargas/corrector"},
        {"Mnu_hojas", "https://www.zorta.cl/descargas/hojas"},
        {"Mnu_Funciona", "https://www.zorta.cl/videos/como-funciona"},
        {"Mnu_Corregir", "https://www.zorta.cl/videos/crear-y-corregir"},
        {"Mnu_Imprime_Hoja", "https://www.zorta.cl/videos/imprimir-hoja"},
    };
    return enlaces.value(control);
}

void MdiMain::Ejecuta(const QString& control) {
    Ejecutar_Comando([&] {
        if (control == QLatin1String("mnu_salir")) return mnu_salir_Click();
        if (const QString url = Enlace(control); !url.isEmpty()) {
            QDesktopServices::openUrl(QUrl(url));
            return;
        }
        if (const auto b = Banderas().find(control); b != Banderas().end()) (*b)(estado());
        QString pantalla;
        for (const EntradaMenu& e : Menu_Principal())
            if (e.control == control) pantalla = e.pantalla;
        Muestra_Pantalla(pantalla);
        // A screen whose loading found it can't work is unloaded again at once.
        if (control == QLatin1String("mnu_pru_gener") && !estado().Pantalla_Valida)
            Descarga(pantalla);
        if ((control == QLatin1String("Mnu_Eje") || control == QLatin1String("Mnu_Habilidades")) &&
            !estado().Analisis_Valido)
            Descarga(pantalla);
    });
}

void MdiMain::Muestra_Modal(const QString& nombre) {
    if (!modales_.contains(nombre)) return;
    std::unique_ptr<QDialog> pantalla(modales_[nombre]());
    pantalla->exec();
}

void MdiMain::Descarga(const QString& nombre) {
    QPointer<QMdiSubWindow> sub = abiertas_.take(nombre);
    if (sub) sub->close();
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
    pantalla->installEventFilter(this);
    sub->show();
    sub->resize(sub->size() - pantalla->size() + tamano);
    return pantalla;
}

bool MdiMain::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::Close) {
        QPointer<QWidget> pantalla = qobject_cast<QWidget*>(objeto);
        if (auto* sub = qobject_cast<QMdiSubWindow*>(pantalla ? pantalla->parentWidget() : nullptr))
            // Looked at once the close is done: a screen that refused to close keeps its frame.
            QMetaObject::invokeMethod(
                sub,
                [sub, pantalla] {
                    if (sub->isVisible() && (!pantalla || !pantalla->isVisible())) sub->close();
                },
                Qt::QueuedConnection);
    }
    return QMainWindow::eventFilter(objeto, evento);
}

void MdiMain::mnu_salir_Click() {
    salio_ = true;
    QApplication::exit(0);
}

void MdiMain::closeEvent(QCloseEvent* evento) {
    if (salio_) return evento->accept();
    const int r = dialogos().MsgBox(QStringLiteral("Desea cerrar su aplicación"),
                                    vbOKCancel + vbQuestion, QStringLiteral("Sistema ZORTA 2016"));
    if (r == vbOK) {
        salio_ = true;
        evento->accept();
    } else {
        evento->ignore();
    }
}
