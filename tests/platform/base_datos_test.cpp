// The store engine on a real SQLite file.
#include "platform/base_datos.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/error_ejecucion.h"

namespace {

class BaseDatosPrueba : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(carpeta.isValid());
        base = BaseDatos::OpenDatabase(Ruta("base.db"));
        base->Execute(
            "CREATE TABLE ALUMNOS (Rut TEXT PRIMARY KEY, PRIMERAPELLIDO TEXT, curso TEXT)");
    }
    QString Ruta(const QString& n) const { return QDir(carpeta.path()).filePath(n); }
    QTemporaryDir carpeta;
    std::shared_ptr<BaseDatos> base;
};

}  // namespace

TEST_F(BaseDatosPrueba, ValuesAreBoundSoAnApostropheIsStoredAsTyped) {
    base->Execute("insert into alumnos values (?, ?, ?)",
                  {"12345678-5", "O'Higgins Riquelme", "1° Medio A"});
    Recordset rs = base->OpenRecordset("select * from ALUMNOS where rut = ?", {"12345678-5"});
    ASSERT_FALSE(rs.Eof());
    EXPECT_EQ(rs["primerapellido"].toString(), "O'Higgins Riquelme");
    EXPECT_EQ(rs[2].toString(), "1° Medio A");
    EXPECT_EQ(rs.FieldName(0), "Rut");
    rs.MoveNext();
    EXPECT_TRUE(rs.Eof());
    EXPECT_FALSE(rs[0].isValid()) << "past the end a field reads as null";
    EXPECT_THROW(rs["no_existe"], ErrorEjecucion);
    EXPECT_THROW(rs[7], ErrorEjecucion);
}

TEST_F(BaseDatosPrueba, AnEmptyTextIsStoredEmptyNotNull) {
    base->Execute("insert into alumnos values (?, ?, ?)", {"1-9", QString(), QVariant()});
    Recordset rs = base->OpenRecordset("select typeof(primerapellido), typeof(curso) from alumnos");
    EXPECT_EQ(rs[0].toString(), "text");
    EXPECT_EQ(rs[1].toString(), "null");
}

TEST_F(BaseDatosPrueba, AddNewOnAnOpenTable) {
    Recordset tabla = base->OpenRecordset("Alumnos");
    tabla.AddNew();
    tabla.Fija("Rut", "5126663-3");
    tabla.Fija("PRIMERAPELLIDO", "Ana");
    tabla.Update();
    EXPECT_THROW(tabla.Fija("columna_falsa", 1), ErrorEjecucion);
    Recordset rs = base->OpenRecordset("select curso, PRIMERAPELLIDO from alumnos");
    ASSERT_EQ(rs.RecordCount(), 1);
    EXPECT_TRUE(rs["curso"].isNull());
    EXPECT_EQ(rs["PrimerApellido"].toString(), "Ana");
    Recordset consulta = base->OpenRecordset("select * from alumnos");
    EXPECT_THROW(consulta.AddNew(), ErrorEjecucion) << "only a table opened by name takes rows";
}

TEST_F(BaseDatosPrueba, AFailedStatementIsAnErrorAndKeepsWhatWasStored) {
    base->Execute("insert into alumnos values (?, ?, ?)", {"1-9", "Uno", "A"});
    EXPECT_THROW(base->Execute("insert into alumnos values (?, ?, ?)", {"1-9", "Otro", "B"}),
                 ErrorEjecucion);
    EXPECT_THROW(base->Execute("select * from tabla_que_no_existe"), ErrorEjecucion);
    EXPECT_EQ(base->OpenRecordset("alumnos").RecordCount(), 1);
}

TEST_F(BaseDatosPrueba, TableNamesAreCaseBlind) {
    EXPECT_TRUE(base->TableExists("alumnos"));
    EXPECT_TRUE(base->TableExists("ALUMNOS"));
    EXPECT_FALSE(base->TableExists("ejes_tematicos"));
    EXPECT_FALSE(base->TableExists("alumnos' or '1'='1"));
}

TEST_F(BaseDatosPrueba, TransactionsStoreAllOrNone) {
    base->BeginTrans();
    base->Execute("insert into alumnos values ('2-7', 'Dos', 'A')");
    base->Rollback();
    EXPECT_EQ(base->OpenRecordset("alumnos").RecordCount(), 0);
    base->BeginTrans();
    base->Execute("insert into alumnos values ('2-7', 'Dos', 'A')");
    base->CommitTrans();
    EXPECT_EQ(base->OpenRecordset("alumnos").RecordCount(), 1);
}

TEST_F(BaseDatosPrueba, CompactDatabaseWritesAWorkingCopy) {
    base->Execute("insert into alumnos values ('3-5', 'Tres', 'B')");
    base->CompactDatabase(Ruta("compacta.db"));
    auto copia = BaseDatos::OpenDatabase(Ruta("compacta.db"));
    EXPECT_EQ(copia->OpenRecordset("select PRIMERAPELLIDO from alumnos")[0].toString(), "Tres");
    EXPECT_THROW(base->CompactDatabase(Ruta("compacta.db")), ErrorEjecucion)
        << "never over an existing file";
}

TEST_F(BaseDatosPrueba, AFileThatIsNotAStoreFailsToOpenAndIsLeftAsItWas) {
    QFile basura(Ruta("basura.db"));
    ASSERT_TRUE(basura.open(QIODevice::WriteOnly));
    basura.write(QByteArray(4096, 'x'));
    basura.close();
    EXPECT_THROW(BaseDatos::OpenDatabase(Ruta("basura.db")), ErrorEjecucion);
    EXPECT_EQ(QFileInfo(Ruta("basura.db")).size(), 4096);
    EXPECT_THROW(BaseDatos::OpenDatabase(Ruta("no/existe/base.db")), ErrorEjecucion);
}

TEST_F(BaseDatosPrueba, StoreUsesWriteAheadLogAndFullSync) {
    EXPECT_EQ(base->OpenRecordset("PRAGMA journal_mode")[0].toString(), "wal");
    EXPECT_EQ(base->OpenRecordset("PRAGMA synchronous")[0].toInt(), 2);
}

// A duplicate key is told in Spanish with the value that already exists, whatever the shape of
// the statement; the engine's words come only as the detail line.
TEST_F(BaseDatosPrueba, ADuplicateKeyNamesTheValueThatAlreadyExists) {
    base->Execute("insert into ALUMNOS values (?, ?, ?)", {"12345678-5", "Ana", "1A"});
    base->Execute("insert into ALUMNOS values (?, ?, ?)", {"9876543-3", "Luis", "1A"});
    const std::vector<std::pair<QString, QVariantList>> casos = {
        {"insert into ALUMNOS values (?, ?, ?)", {"12345678-5", "Otra", "2B"}},
        {"insert into alumnos (curso, rut, primerapellido) values (?, ?, ?)", {"2B", "12345678-5", "Otra"}},
        {"update ALUMNOS set rut = ? where rut = ?", {"12345678-5", "9876543-3"}},
    };
    for (const auto& [sql, parametros] : casos) {
        try {
            base->Execute(sql, parametros);
            ADD_FAILURE() << sql.toStdString();
        } catch (const ErrorEjecucion& e) {
            const QStringList lineas = e.texto().split('\n');
            EXPECT_EQ(lineas.at(0), "Ya existe en la tabla ALUMNOS un registro con Rut = '12345678-5'.") << sql.toStdString();
            EXPECT_TRUE(lineas.at(1).startsWith("Detalle: UNIQUE constraint failed")) << lineas.at(1).toStdString();
        }
    }
}

// Names sort as a Spanish reader expects: case-blind, accented letters beside their plain
// letters, "ñ" after "n"; only equal texts compare equal.
TEST_F(BaseDatosPrueba, TheSpanishCollationOrdersNamesAsAReaderExpects) {
    const QStringList nombres = {"oso",       "Números", "ñandú",   "datos",  "Álgebra", "nube",
                                 "Geometría", "algebra", "Algebra", "Zapata", "árbol"};
    for (int i = 0; i < nombres.size(); ++i)
        base->Execute("insert into alumnos values (?, ?, '')", {QString::number(i), nombres[i]});
    Recordset rs = base->OpenRecordset(
        "select PRIMERAPELLIDO from alumnos order by PRIMERAPELLIDO collate ESPANOL");
    QStringList orden;
    for (; !rs.Eof(); rs.MoveNext()) orden << rs[0].toString();
    EXPECT_EQ(orden, QStringList({"algebra", "Algebra", "Álgebra", "árbol", "datos", "Geometría",
                                  "nube", "Números", "ñandú", "oso", "Zapata"}));
    Recordset igual = base->OpenRecordset(
        "select count(*) from alumnos where PRIMERAPELLIDO = 'algebra' collate ESPANOL");
    EXPECT_EQ(igual[0].toInt(), 1);
}
