// A store of its own for each test.
#include "support/base_temporal.h"

#include <QDir>

#include "app/estado.h"
#include "app/inicio.h"
#include "platform/base_datos.h"

void BaseTemporal::SetUp() {
    ASSERT_TRUE(carpeta.isValid());
    qputenv("ZORTA_DATOS", carpeta.path().toLocal8Bit());
    estado() = Estado{};
    guion = &Instala_Guion();
}

void BaseTemporal::TearDown() {
    if (guion) {
        EXPECT_TRUE(guion->Agotado()) << "Quedaron respuestas del guion sin usar";
    }
    estado() = Estado{};
    qunsetenv("ZORTA_DATOS");
}

bool BaseTemporal::Arranca() { return MDIForm_Load(); }

QString BaseTemporal::Ruta(const QString& nombre) const { return QDir(carpeta.path()).filePath(nombre); }

void BaseTemporal::Ejecuta(const QString& sql, const QVariantList& parametros) {
    estado().BaseDatos->Execute(sql, parametros);
}

QVariant BaseTemporal::Valor(const QString& sql, const QVariantList& parametros) {
    Recordset rs = estado().BaseDatos->OpenRecordset(sql, parametros);
    return rs.Eof() ? QVariant() : rs[0];
}
