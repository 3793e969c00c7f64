// The store reset: which rows go and which stay, the counter, the compaction and its failure.
#include "masters/screens/frm_clean_base.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/error_ejecucion.h"
#include "platform/screens/navegacion.h"
#include "store/contadores.h"
#include "support/base_temporal.h"

namespace {

class Inicializa : public BaseArrancada {
  protected:
    void SetUp() override {
        BaseArrancada::SetUp();
        for (int id : {1, 2, 5}) {
            Ejecuta("insert into prueba_rj (IdPrueba, NombrePrueba) values (?, 'Prueba')", {id});
            Ejecuta("insert into Resp_preguntas_pautas values (?, 1, 1, 1)", {id});
            Ejecuta("insert into respuesta_alumnos_por_rut values (?, 1, 1, 1, '1-9')", {id});
            Ejecuta(
                "insert into ResultadoAlumnos_rj values (?, '1-9', 1, 0, 0, 0, 0, 7, 0, 100, 1)",
                {id});
        }
        Ejecuta("insert into NEW_EJE_TEMATICO values (1, 5, 1, 'Eje', 'Hab', 1, 'GENERAL')");
        Ejecuta("insert into EjesPSU values (1, 'Eje')");
        Ejecuta("insert into ALUMNOS values ('1-9', 'Carrera', '2° Medio B', '0')");
        Ejecuta("insert into NivelesCalificacion values ('5', 55, 90)");
        Ejecuta("update indice_general set valor_indice = 5 where tipo_indice = 'PRUEBA'");
        navegacion().descarga = [this](const QString& n) { descargadas << n; };
    }
    void TearDown() override {
        navegacion() = Navegacion{};
        BaseTemporal::TearDown();
    }
    void Ejecuta(const QString& sql, const QVariantList& p = {}) {
        estado().BaseDatos->Execute(sql, p);
    }
    int Filas(const QString& tabla) { return Valor("select count(*) from " + tabla).toInt(); }
    QString Compacta() const {
        return QFileInfo(estado().BaseDatos->Ruta()).dir().filePath("BaseNota_compac.db");
    }
    QStringList descargadas;
};

}  // namespace

TEST_F(Inicializa, CancelLeavesEverything) {
    FrmCleanBase f;
    guion->Espera("Inicializa Base de Datos", vbCancel);
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Esta seguro de Inicializar la base de datos");
    EXPECT_EQ(Filas("prueba_rj"), 3);
    EXPECT_EQ(Filas("ResultadoAlumnos_rj"), 3);
}

TEST_F(Inicializa, TestsAndResultsGoMastersStayAndTheNextTestIsTwo) {
    FrmCleanBase f;
    guion->Espera("Inicializa Base de Datos");
    guion->Espera("Inicializa Base de Datos");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "La base ha sido inicializada");
    EXPECT_TRUE(f.Compactada);
    EXPECT_FALSE(QFile::exists(Compacta()));
    EXPECT_EQ(descargadas, QStringList{"frmCorrecPru"});
    // Test 1 stays without its key and results.
    EXPECT_EQ(Valor("select group_concat(IdPrueba) from prueba_rj").toString(), "1");
    for (const char* t : {"Resp_preguntas_pautas", "respuesta_alumnos_por_rut",
                          "ResultadoAlumnos_rj", "NEW_EJE_TEMATICO", "EjesPSU"})
        EXPECT_EQ(Filas(t), 0) << t;
    EXPECT_EQ(Filas("ALUMNOS"), 1);
    EXPECT_EQ(Valor("select desde from NivelesCalificacion where concepto = '5'").toInt(), 55);
    EXPECT_EQ(Siguiente_Indice("PRUEBA"), 2);
}

TEST_F(Inicializa, WithoutTestOneNoTestStays) {
    Ejecuta("delete from prueba_rj where IdPrueba = 1");
    FrmCleanBase f;
    guion->Espera("Inicializa Base de Datos");
    guion->Espera("Inicializa Base de Datos");
    f.XPButAceptar_Click();
    EXPECT_EQ(Filas("prueba_rj"), 0);
}

TEST_F(Inicializa, AFailedCompactionLeavesAWorkingStoreAndTheSameMessage) {
    ASSERT_TRUE(QDir().mkdir(Compacta()));  // a folder in the copy's place makes it fail
    FrmCleanBase f;
    guion->Espera("Inicializa Base de Datos");
    guion->Espera("Inicializa Base de Datos");
    f.XPButAceptar_Click();
    EXPECT_FALSE(f.Compactada);
    EXPECT_EQ(guion->cajas.back().texto, "La base ha sido inicializada");
    EXPECT_TRUE(QFileInfo(Compacta()).isDir());
    EXPECT_EQ(Filas("ResultadoAlumnos_rj"), 0);
    EXPECT_EQ(Filas("ALUMNOS"), 1);
}

TEST_F(Inicializa, AMissingTableStopsTheDeletesWhereTheyStand) {
    Ejecuta("drop table EjesPSU");
    FrmCleanBase f;
    guion->Espera("Inicializa Base de Datos");
    EXPECT_THROW(f.XPButAceptar_Click(), ErrorEjecucion);
    EXPECT_EQ(Filas("NEW_EJE_TEMATICO"), 0);
    EXPECT_EQ(Filas("prueba_rj"), 3);
    ASSERT_TRUE(estado().BaseDatos);
}
