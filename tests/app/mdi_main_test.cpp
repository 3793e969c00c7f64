// The main window: its caption, its menu and the closing question.
#include <gtest/gtest.h>

#include <QAction>
#include <QMenuBar>

#include "app/menu_principal.h"
#include "app/screens/mdi_main.h"
#include "support/base_temporal.h"

namespace {

class Principal : public BaseTemporal {
protected:
    void SetUp() override {
        BaseTemporal::SetUp();
        ASSERT_TRUE(Arranca());
    }
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
    EXPECT_EQ(visibles, QStringList({"Archivo", "Resumen General", "Prueba Cargada", "Resultados Guardados",
                                     "Utilidades", "Base de Datos"}));
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
    EXPECT_FALSE(m.Accion("mnu_alum")->isEnabled()) << "a screen not built yet is present and disabled";
}
