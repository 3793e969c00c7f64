// Shared set-up of the master-data tests.
#include "apoyo_maestros.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QWidget>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"

void Maestros::SetUp() {
    BaseArrancada::SetUp();
}

QString Maestros::Lista(const QString& nombre) {
    return QDir(QStringLiteral(ZORTA_DATOS_PRUEBA "/masters")).filePath(nombre);
}

QString Maestros::Escribe(const QString& nombre, const QByteArray& contenido) {
    QFile f(Ruta(nombre));
    EXPECT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(contenido);
    return f.fileName();
}

QStringList Maestros::Filas(const QString& sql, const QVariantList& parametros) {
    QStringList filas;
    for (Recordset rs = estado().BaseDatos->OpenRecordset(sql, parametros); !rs.Eof();
         rs.MoveNext()) {
        QStringList campos;
        for (int i = 0; i < rs.FieldCount(); ++i) campos << rs[i].toString();
        filas << campos.join(u'|');
    }
    return filas;
}

bool Maestros::Comando(const std::function<void()>& comando) {
    return Ejecutar_Comando(comando);
}

void Teclea(QWidget* control, const QString& texto) {
    for (const QChar c : texto) {
        const int tecla = c.isLetter() ? QChar(c.toUpper()).unicode() : c.unicode();
        QKeyEvent pulsa(QEvent::KeyPress, tecla, Qt::NoModifier, QString(c));
        QApplication::sendEvent(control, &pulsa);
        QKeyEvent suelta(QEvent::KeyRelease, tecla, Qt::NoModifier, QString(c));
        QApplication::sendEvent(control, &suelta);
    }
}
