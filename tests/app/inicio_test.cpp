// Start-up on real store files: fresh, older, complete, damaged.
#include <gtest/gtest.h>

#include <QFile>
#include <clocale>
#include <cstdlib>

#include "app/estado.h"
#include "app/inicio.h"
#include "platform/base_datos.h"
#include "support/base_temporal.h"

namespace {

class Inicio : public BaseTemporal {
protected:
    // Starts again on the same data folder, as a second run of the program would.
    bool Rearranca() {
        estado() = Estado{};
        return Arranca();
    }
};

}  // namespace

TEST_F(Inicio, FreshStoreIsCreatedInTheDataFolderWithFlagsClearedAndGray180) {
    estado().Mant_PSU = estado().Mant_SIMCE = estado().Puntajes_PSU = estado().Puntajes_SIMCE = true;
    ASSERT_TRUE(Arranca());
    EXPECT_TRUE(QFile::exists(Ruta("BaseNota.db")));
    EXPECT_FALSE(estado().Mant_PSU || estado().Mant_SIMCE || estado().Puntajes_PSU || estado().Puntajes_SIMCE);
    EXPECT_EQ(estado().Nivel_Gris, 180);
    EXPECT_EQ(estado().Nota_Minima_Actual, 1);
    for (const char* t : {"NEW_EJE_TEMATICO", "Puntajes_PSU_NEW", "Puntajes_PSU_DINAMICO"})
        EXPECT_TRUE(estado().BaseDatos->TableExists(t)) << t;
    EXPECT_TRUE(guion->cajas.empty());
}

TEST_F(Inicio, OldAxesAreCopiedKeepingTheirNumbersAndOrder) {
    ASSERT_TRUE(Arranca());
    Ejecuta("DROP TABLE NEW_EJE_TEMATICO");
    Ejecuta("CREATE TABLE ejes_tematicos (CORRELATIVO integer, IDPRUEBA integer, NUMERO_PREGUNTA integer, "
            "EJE_TEMATICO char, EJE_OBJETIVO char, FORMA integer, TIPO_PRUEBA char)");
    const QString ins = "insert into ejes_tematicos values (?, 3, ?, ?, ?, 1, 'GENERAL')";
    Ejecuta(ins, {9, 3, "Geometría", "Aplicar"});
    Ejecuta(ins, {2, 1, "Números", "Conocer"});
    Ejecuta(ins, {5, 2, "L'álgebra", "ELIMINADA"});
    ASSERT_TRUE(Rearranca());
    Recordset rs = estado().BaseDatos->OpenRecordset("select * from NEW_EJE_TEMATICO order by rowid");
    QStringList filas;
    for (; !rs.Eof(); rs.MoveNext()) {
        QStringList f;
        for (int i = 0; i < 7; ++i) f << rs[i].toString();
        filas << f.join("|");
    }
    EXPECT_EQ(filas, QStringList({"2|3|1|Números|Conocer|1|GENERAL", "5|3|2|L'álgebra|ELIMINADA|1|GENERAL",
                                  "9|3|3|Geometría|Aplicar|1|GENERAL"}));
    EXPECT_EQ(Valor("select count(*) from ejes_tematicos").toInt(), 3) << "the old table stays";
}

TEST_F(Inicio, StoreWithTheThreeTablesIsLeftAlone) {
    ASSERT_TRUE(Arranca());
    Ejecuta("CREATE TABLE ejes_tematicos (CORRELATIVO integer, IDPRUEBA integer, NUMERO_PREGUNTA integer, "
            "EJE_TEMATICO char, EJE_OBJETIVO char, FORMA integer, TIPO_PRUEBA char)");
    Ejecuta("insert into ejes_tematicos values (1, 1, 1, 'x', 'y', 1, 'GENERAL')");
    Ejecuta("DROP TABLE Puntajes_PSU_NEW");
    Ejecuta("CREATE TABLE puntajes_psu_new (solo_una integer)");
    ASSERT_TRUE(Rearranca());
    EXPECT_EQ(Valor("select count(*) from NEW_EJE_TEMATICO").toInt(), 0) << "no copy when the table exists";
    Recordset rs = estado().BaseDatos->OpenRecordset("select * from Puntajes_PSU_NEW");
    EXPECT_EQ(rs.FieldCount(), 1);
}

TEST_F(Inicio, AFailedMigrationIsReportedAndTriedAgainAtTheNextStart) {
    ASSERT_TRUE(Arranca());
    Ejecuta("DROP TABLE NEW_EJE_TEMATICO");
    Ejecuta("PRAGMA user_version = 0");
    // An old table whose rows don't fit: the copy fails, the operator is told, start-up goes on.
    Ejecuta("CREATE TABLE ejes_tematicos (CORRELATIVO integer)");
    Ejecuta("insert into ejes_tematicos values (1)");
    guion->Espera("Actualización de la Base de Datos");
    ASSERT_TRUE(Rearranca());
    EXPECT_TRUE(guion->cajas.at(0).texto.startsWith(
        "No se pudo actualizar la base de datos a esta versión de Zorta."));
    EXPECT_FALSE(estado().BaseDatos->TableExists("NEW_EJE_TEMATICO")) << "undone whole";
    EXPECT_EQ(Valor("PRAGMA user_version").toInt(), 0) << "the version waits for a full migration";
    EXPECT_EQ(Valor("select count(*) from ejes_tematicos").toInt(), 1) << "the old table stays";
}

TEST_F(Inicio, MissingMinimumGradeWarnsAndGoesOnWithZero) {
    ASSERT_TRUE(Arranca());
    Ejecuta("delete from NivelesCalificacion where concepto = 'NM'");
    Ejecuta("update indice_general set valor_indice = 200 where tipo_indice = 'COLOR'");
    guion->Espera("Indocar Minimo de Notas");
    ASSERT_TRUE(Rearranca());
    EXPECT_EQ(estado().Nota_Minima_Actual, 0);
    EXPECT_EQ(estado().Nivel_Gris, 180) << "the saved gray value does not reach a new run";
}

TEST_F(Inicio, ADamagedStoreStopsTheStartAndIsNotTouched) {
    QFile f(Ruta("BaseNota.db"));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(QByteArray(3000, '\x7f'));
    f.close();
    guion->Espera("Error de ejecución");
    EXPECT_FALSE(Arranca());
    EXPECT_TRUE(guion->cajas.at(0).texto.startsWith("No se pudo abrir la base de datos"));
    EXPECT_EQ(QFileInfo(Ruta("BaseNota.db")).size(), 3000);
    EXPECT_FALSE(estado().BaseDatos);
}

TEST_F(Inicio, NumbersKeepTheDecimalPointUnderACommaLocale) {
    if (!std::setlocale(LC_NUMERIC, "es_CL.UTF-8") && !std::setlocale(LC_NUMERIC, "de_DE.UTF-8"))
        GTEST_SKIP() << "no comma locale on this machine";
    ASSERT_TRUE(Arranca());
    EXPECT_DOUBLE_EQ(std::strtod("4.5", nullptr), 4.5);
}
