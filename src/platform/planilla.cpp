// The spreadsheet layer.
#include "platform/planilla.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <xlsxwriter.h>

bool Planilla_Disponible() {
    QTemporaryDir carpeta;
    if (!carpeta.isValid()) return false;
    const QByteArray ruta = QDir(carpeta.path()).filePath(QStringLiteral("prueba.xlsx")).toLocal8Bit();
    lxw_workbook* libro = workbook_new(ruta.constData());
    if (!libro) return false;
    workbook_add_worksheet(libro, nullptr);
    return workbook_close(libro) == LXW_NO_ERROR && QFile::exists(QString::fromLocal8Bit(ruta));
}
