// The store's life: every way out of the program closes it cleanly, a file that is not a store
// is refused untouched, a first start killed at any moment never leaves a dead store, and the
// store file alone is a complete copy after each command.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QThread>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "store/apertura_base.h"
#include "support/base_temporal.h"

namespace {

class CicloBase : public BaseTemporal {
  protected:
    // The status of a program that could not be started (as `nobody`, one out of its reach).
    static constexpr int kNoParte = -2;
    struct Fin {
        int estado = -1;
        bool normal = false;
        QString salida;
    };
    // Runs a program on this test's data folder; as the user `nobody` when `sin_privilegios`.
    Fin Corre(const QString& programa, const QStringList& args, int matar_ms = -1,
              bool sin_privilegios = false) {
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("ZORTA_DATOS", carpeta.path());
        env.insert("QT_QPA_PLATFORM", "offscreen");
        p.setProcessEnvironment(env);
        p.setProcessChannelMode(QProcess::MergedChannels);
        if (sin_privilegios)
            p.setChildProcessModifier([] {
                if (::setgid(65534) != 0 || ::setuid(65534) != 0) ::_exit(99);
            });
        p.start(programa, args);
        if (!p.waitForStarted(60000)) return {kNoParte, false, p.errorString()};
        if (matar_ms >= 0) {
            QThread::usleep(static_cast<unsigned long>(matar_ms) * 1000);
            p.kill();
        }
        EXPECT_TRUE(p.waitForFinished(60000));
        return {p.exitCode(), p.exitStatus() == QProcess::NormalExit,
                QString::fromUtf8(p.readAll())};
    }
    // A start of the store and nothing else: a test that does not exist.
    Fin Arranque(int matar_ms = -1, bool sin_privilegios = false) {
        return Corre(ZORTA_EJECUTABLE, {"corregir", "--prueba", "999", "--carpeta", carpeta.path()},
                     matar_ms, sin_privilegios);
    }
    QByteArray Huella(const QString& ruta) {
        QFile f(ruta);
        if (!f.open(QIODevice::ReadOnly)) return "sin archivo";
        return QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha256);
    }
};

TEST_F(CicloBase, EveryWayOutOfTheApplicationEndsWithStatusZeroAndTheJournalEmptied) {
    for (const char* salida : {"salir", "cerrar"}) {
        const Fin fin = Corre(APLICACION_SALIDA, {salida});
        EXPECT_TRUE(fin.normal) << salida << "\n" << fin.salida.toStdString();
        EXPECT_EQ(fin.estado, 0) << salida << "\n" << fin.salida.toStdString();
        EXPECT_EQ(QFileInfo(Ruta("BaseNota.db-wal")).size(), 0) << salida;
        EXPECT_EQ(fin.salida.contains("[Sistema ZORTA 2016] Desea cerrar su aplicación"),
                  salida == QLatin1String("cerrar"));
    }
}

// Files that are not a store of ours: each is refused with words and left byte for byte.
TEST_F(CicloBase, AFileThatIsNotAStoreIsRefusedAndLeftAsItWas) {
    const QString ruta = Ruta("BaseNota.db");
    const std::vector<std::pair<const char*, std::function<void()>>> casos = {
        {"vacío",
         [&] {
             QFile f(ruta);
             ASSERT_TRUE(f.open(QIODevice::WriteOnly));
         }},
        {"SQLite ajeno",
         [&] {
             auto otra = BaseDatos::OpenDatabase(ruta, Apertura::Creacion);
             otra->Execute("create table facturas (numero integer, total real)");
             otra->Execute("insert into facturas values (1, 99.5)");
         }},
        {"carpeta", [&] { ASSERT_TRUE(QDir().mkpath(ruta)); }},
        {"basura",
         [&] {
             QFile f(ruta);
             ASSERT_TRUE(f.open(QIODevice::WriteOnly));
             f.write(QByteArray("SQLite format 3") + QByteArray(4000, '\x5a'));
         }},
    };
    for (const auto& [caso, prepara] : casos) {
        QDir(ruta).removeRecursively();
        QFile::remove(ruta);
        prepara();
        const QByteArray antes = Huella(ruta);
        const Fin fin = Arranque();
        EXPECT_TRUE(fin.normal) << caso;
        EXPECT_NE(fin.estado, 0) << caso;
        EXPECT_TRUE(fin.salida.contains("No se pudo abrir la base de datos"))
            << caso << fin.salida.toStdString();
        EXPECT_EQ(Huella(ruta), antes) << caso;
        EXPECT_FALSE(QFile::exists(ruta + "-wal")) << caso;
    }
}

TEST_F(CicloBase, AReadOnlyDataFolderIsRefusedWithItsName) {
    ASSERT_TRUE(QFile::setPermissions(
        carpeta.path(), QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther));
    const Fin fin = Arranque(-1, ::geteuid() == 0);
    QFile::setPermissions(carpeta.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    if (fin.estado == 99 || fin.estado == kNoParte)
        GTEST_SKIP() << "no se pudo correr Zorta como el usuario nobody: "
                     << fin.salida.toStdString();
    EXPECT_TRUE(fin.normal);
    EXPECT_NE(fin.estado, 0);
    EXPECT_TRUE(fin.salida.contains("No se puede escribir en la carpeta de datos"))
        << fin.salida.toStdString();
    EXPECT_FALSE(QFile::exists(Ruta("BaseNota.db")));
}

// A first start killed at moments spread over its whole length: the next start always finds
// (or makes) a working store.
TEST_F(CicloBase, AFirstStartKilledAtAnyMomentLeavesAWorkingStore) {
    QElapsedTimer reloj;
    reloj.start();
    ASSERT_TRUE(Arranque().salida.contains("no existe la prueba 999"));
    const int duracion = static_cast<int>(reloj.elapsed());
    for (int i = 0; i < 30; ++i) {
        QFile::remove(Ruta("BaseNota.db"));
        Arranque(duracion * i / 30);
        const Fin despues = Arranque();
        ASSERT_TRUE(despues.salida.contains("no existe la prueba 999"))
            << "muerto a los " << duracion * i / 30 << " ms:\n"
            << despues.salida.toStdString();
    }
}

TEST_F(CicloBase, TheStoreFileAloneHoldsWhatACommandSaved) {
    ASSERT_TRUE(Arranca());
    ASSERT_TRUE(Ejecutar_Comando([] {
        estado().BaseDatos->Execute("insert into ALUMNOS values ('12345678-5', 'Ana', '1A', '0')");
    }));
    ASSERT_TRUE(QFile::copy(Ruta("BaseNota.db"), Ruta("copia.db")));
    auto copia = BaseDatos::OpenDatabase(Ruta("copia.db"));
    EXPECT_EQ(copia->OpenRecordset("select count(*) from ALUMNOS")[0].toInt(), 1);
}

TEST_F(CicloBase, ACommandOnAClosedStoreIsARunTimeErrorNotACrash) {
    ASSERT_TRUE(Arranca());
    Cierra_Base();
    guion->Espera("Error de ejecución");
    EXPECT_FALSE(Ejecutar_Comando([] { estado().BaseDatos->Execute("delete from ALUMNOS"); }));
    EXPECT_EQ(guion->cajas.at(0).texto,
              "La base de datos está cerrada: cierre Zorta y vuelva a abrirlo.");
}

}  // namespace
