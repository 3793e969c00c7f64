// Shared set-up of the master-data tests.
#include "apoyo_maestros.h"

#include <zip.h>

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

void Escribe_Xlsx(const QString& ruta, const QByteArray& celdas, const QByteArray& compartidos) {
    const QByteArray ns = "xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"";
    std::vector<std::pair<const char*, QByteArray>> partes = {
        {"xl/workbook.xml", "<workbook " + ns +
                                " xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/"
                                "relationships\"><sheets><sheet name=\"Hoja1\" sheetId=\"1\" "
                                "r:id=\"rId1\"/></sheets></workbook>"},
        {"xl/_rels/workbook.xml.rels",
         "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">"
         "<Relationship Id=\"rId1\" Target=\"worksheets/sheet1.xml\" Type=\"x\"/>"
         "</Relationships>"},
        {"xl/worksheets/sheet1.xml",
         "<worksheet " + ns + "><sheetData>" + celdas + "</sheetData></worksheet>"},
    };
    if (!compartidos.isNull()) partes.push_back({"xl/sharedStrings.xml", compartidos});
    QFile::remove(ruta);
    int error = 0;
    zip_t* zip = zip_open(QFile::encodeName(ruta).constData(), ZIP_CREATE, &error);
    ASSERT_NE(zip, nullptr);
    for (const auto& [nombre, datos] : partes) {
        zip_source_t* fuente = zip_source_buffer(zip, datos.constData(), datos.size(), 0);
        ASSERT_GE(zip_file_add(zip, nombre, fuente, ZIP_FL_OVERWRITE), 0);
    }
    ASSERT_EQ(zip_close(zip), 0);
}
