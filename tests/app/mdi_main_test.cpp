// The main window: its caption, its menu and the closing question.
#include "app/screens/mdi_main.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QCoreApplication>
#include <QMdiArea>
#include <QMenuBar>

#include "app/estado.h"
#include "app/menu_principal.h"
#include "support/base_temporal.h"

namespace {

class Principal : public BaseArrancada {
  protected:
};

}  // namespace

TEST_F(Principal, ClosingAsksAndCancelKeepsTheWindow) {
    MdiMain m;
    m.show();
    guion->Espera("Sistema ZORTA 2016", vbCancel);
    EXPECT_FALSE(m.close());
    EXPECT_TRUE(m.isVisible());
    guion->Espera("Sistema ZORTA 2016", vbOK);
    EXPECT_TRUE(m.close());
    ASSERT_EQ(guion->cajas.size(), 2u);
    EXPECT_EQ(guion->cajas[0].texto, "Desea cerrar su aplicación");
    EXPECT_EQ(guion->cajas[0].estilo & 0x0F, vbOKCancel);
}

TEST_F(Principal, SalirEndsWithoutAQuestion) {
    MdiMain m;
    m.show();
    m.Accion("mnu_salir")->trigger();
    EXPECT_TRUE(m.Salio());
    EXPECT_TRUE(m.close());
    EXPECT_TRUE(guion->cajas.empty());
}

TEST_F(Principal, MenuBarInOrderWithHiddenEntriesHidden) {
    MdiMain m;
    EXPECT_EQ(m.windowTitle(), "Principal");
    QStringList visibles;
    for (QAction* a : m.menuBar()->actions())
        if (a->isVisible()) visibles << a->text();
    EXPECT_EQ(visibles, QStringList({"Archivo", "Resumen General", "Prueba Cargada",
                                     "Resultados Guardados", "Utilidades", "Base de Datos"}));
    for (const EntradaMenu& e : Menu_Principal()) {
        QAction* a = m.Accion(e.control);
        ASSERT_NE(a, nullptr) << e.control.toStdString();
        EXPECT_EQ(a->isVisible(), e.visible) << e.control.toStdString();
        if (e.titulo != "-") {
            EXPECT_EQ(a->text(), e.titulo);
        }
    }
    EXPECT_EQ(m.Accion("Mnu_Ini_Base")->text(), "Inicializa Base de Batos");
}

TEST_F(Principal, TestListIsOneInstanceBroughtToTheFront) {
    MdiMain m;
    m.show();
    QWidget* primera = m.Muestra_Pantalla("frmCorrecPru");
    ASSERT_NE(primera, nullptr);
    EXPECT_EQ(primera->windowTitle(), "Resumen Pruebas Ingresadas.");
    m.Accion("mnu_enc_abierta")->trigger();
    EXPECT_EQ(m.Muestra_Pantalla("frmCorrecPru"), primera);
}

TEST_F(Principal, EachCommandSetsItsFlagsBeforeItsScreen) {
    MdiMain m;
    struct Caso {
        const char* control;
        bool seteo, corrige, agrega;
    };
    // The reading screen opens once, without a current test: its opening says so.
    guion->Espera("Analisis Cualitativo");
    for (const Caso& c :
         {Caso{"nme_nue_correc", false, true, false}, Caso{"mnu_agre_actual", false, true, true}}) {
        estado().Seteo_Hoja = true;
        m.Ejecuta(c.control);
        EXPECT_EQ(estado().Seteo_Hoja, c.seteo) << c.control;
        EXPECT_EQ(estado().Corrige_Pruebas, c.corrige) << c.control;
        EXPECT_EQ(estado().Agrega_Actual, c.agrega) << c.control;
    }
    m.Ejecuta("MnuSeteo");
    EXPECT_TRUE(estado().Seteo_Hoja);
    EXPECT_TRUE(estado().Agrega_Actual) << "left as it was";
    // The analysis opens on no test each time: it says so, and is unloaded again.
    guion->Espera("Correccion de pruebas");
    m.Ejecuta("Mnu_Habilidades");
    EXPECT_EQ(estado().Tipo_Analisis, "HABILIDAD");
    EXPECT_EQ(m.Pantalla("FrmHabiliObjet"), nullptr);
    guion->Espera("Correccion de pruebas");
    m.Ejecuta("Mnu_Eje");
    EXPECT_EQ(estado().Tipo_Analisis, "EJE TEMATICO");
    guion->Espera("Modificación de Alternativas...");  // its screen opens on no test
    m.Ejecuta("Mnu_Eliminar");
    EXPECT_EQ(estado().Modo_Correccion, "Eliminacion");
    m.Ejecuta("Mnu_Correccion");
    EXPECT_EQ(estado().Modo_Correccion, "Modificacion");
}

TEST_F(Principal, ScoreTableFlagsFollowTheLastCommand) {
    MdiMain m;
    const auto banderas = [] {
        const Estado& e = estado();
        return QString("%1%2%3%4")
            .arg(e.Mant_PSU)
            .arg(e.Mant_SIMCE)
            .arg(e.Puntajes_PSU)
            .arg(e.Puntajes_SIMCE);
    };
    m.Ejecuta("MnuSimce1");
    EXPECT_EQ(banderas(), "0100");
    m.Ejecuta("Mnu_Mant_PSU");
    EXPECT_EQ(banderas(), "1100") << "both set: the screen tests Mant_PSU first";
    m.Ejecuta("mnu_psu");
    EXPECT_EQ(banderas(), "1100") << "the hidden entry keeps the flags";
    m.Ejecuta("MMnu_Mant_PSu");
    EXPECT_EQ(banderas(), "0010");
    m.Ejecuta("MnuPuntajesSIMCE");
    EXPECT_EQ(banderas(), "0101");
}

TEST_F(Principal, WebLinksAndSharedScreens) {
    for (const char* c :
         {"Mnu_Corrector", "Mnu_hojas", "Mnu_Funciona", "Mnu_Corregir", "Mnu_Imprime_Hoja"})
        EXPECT_TRUE(MdiMain::Enlace(c).startsWith("https://")) << c;
    EXPECT_TRUE(MdiMain::Enlace("mnu_alum").isEmpty());
    QMap<QString, QString> pantalla;
    for (const EntradaMenu& e : Menu_Principal()) pantalla[e.control] = e.pantalla;
    EXPECT_EQ(pantalla["Mnu_Ejes"], pantalla["mnu_eje_tematico"]);
    EXPECT_EQ(pantalla["Mnu_Analisis_Pregunta"], pantalla["Mnu_Por_pregunta"]);
    MdiMain m;
    m.Ejecuta("mnu_acer");
    ASSERT_NE(m.Pantalla("ACERCA_de"), nullptr);
    EXPECT_EQ(m.Pantalla("ACERCA_de")->windowTitle(), "Acerca de...");
    m.Descarga("ACERCA_de");
    EXPECT_EQ(m.Pantalla("ACERCA_de"), nullptr);
}

TEST_F(Principal, AScreenThatClosesItselfLeavesNoEmptyFrame) {
    MdiMain m;
    m.show();
    QWidget* acerca = m.Muestra_Pantalla("ACERCA_de");
    ASSERT_NE(acerca, nullptr);
    acerca->close();
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_EQ(m.Pantalla("ACERCA_de"), nullptr);
    EXPECT_TRUE(m.findChild<QMdiArea*>()->subWindowList().isEmpty());
}
