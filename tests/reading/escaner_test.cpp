// The scanning program of scaner.ini is started from its line as it stands.
#include "reading/escaner.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

namespace {

bool Aparece(const QString& ruta) {
    QElapsedTimer reloj;
    reloj.start();
    while (!QFile::exists(ruta) && reloj.elapsed() < 10000) QThread::msleep(20);
    return QFile::exists(ruta);
}

TEST(Escaner, APathWithSpacesNeedsNoQuotes) {
    QTemporaryDir carpeta;
    ASSERT_TRUE(QDir(carpeta.path()).mkdir("Mi Escaner"));
    // The program leaves a mark where its first argument says, or beside itself.
    const QString programa = carpeta.filePath("Mi Escaner/escanear");
    QFile guion(programa);
    ASSERT_TRUE(guion.open(QIODevice::WriteOnly));
    guion.write("#!/bin/sh\ntouch \"${1:-$(dirname \"$0\")/sin_argumentos}\"\n");
    guion.close();
    guion.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QString marca = carpeta.filePath("con_argumento");
    const std::pair<QString, QString> casos[] = {
        {programa, carpeta.filePath("Mi Escaner/sin_argumentos")},
        {programa + " " + marca, marca},
    };
    for (const auto& [linea, huella] : casos) {
        SCOPED_TRACE(linea.toStdString());
        EXPECT_NO_THROW(Inicia_Escaner(linea));
        EXPECT_TRUE(Aparece(huella));
    }
}

}  // namespace
