// The operator's boxes on Qt Widgets.
#include "platform/screens/dialogos_qt.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

namespace {

QMessageBox::Icon Icono(int estilo) {
    switch (estilo & 0x70) {
        case vbCritical:
            return QMessageBox::Critical;
        case vbQuestion:
            return QMessageBox::Question;
        case vbExclamation:
            return QMessageBox::Warning;
        case vbInformation:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

// The buttons of a style, each with what the box gives back for it.
std::vector<std::pair<QMessageBox::StandardButton, int>> Botones(int estilo) {
    switch (estilo & 0x0F) {
        case vbOKCancel:
            return {{QMessageBox::Ok, vbOK}, {QMessageBox::Cancel, vbCancel}};
        case vbAbortRetryIgnore:
            return {{QMessageBox::Abort, vbAbort}, {QMessageBox::Retry, vbRetry}, {QMessageBox::Ignore, vbIgnore}};
        case vbYesNoCancel:
            return {{QMessageBox::Yes, vbYes}, {QMessageBox::No, vbNo}, {QMessageBox::Cancel, vbCancel}};
        case vbYesNo:
            return {{QMessageBox::Yes, vbYes}, {QMessageBox::No, vbNo}};
        case vbRetryCancel:
            return {{QMessageBox::Retry, vbRetry}, {QMessageBox::Cancel, vbCancel}};
        default:
            return {{QMessageBox::Ok, vbOK}};
    }
}

}  // namespace

int DialogosQt::MsgBox(const QString& texto, int estilo, const QString& titulo) {
    QString visible = texto;
    visible.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    QMessageBox caja(Icono(estilo), titulo, visible, QMessageBox::NoButton, QApplication::activeWindow());
    const auto botones = Botones(estilo);
    for (const auto& [b, r] : botones) {
        QAbstractButton* boton = caja.addButton(b);
        if (b == QMessageBox::Yes) boton->setText(QStringLiteral("Sí"));
        if (b == QMessageBox::No) boton->setText(QStringLiteral("No"));
        if (b == QMessageBox::Cancel) boton->setText(QStringLiteral("Cancelar"));
        if (b == QMessageBox::Ok) boton->setText(QStringLiteral("Aceptar"));
    }
    caja.exec();
    const auto pulsado = caja.standardButton(caja.clickedButton());
    for (const auto& [b, r] : botones)
        if (b == pulsado) return r;
    return botones.size() == 1 ? vbOK : vbCancel;  // closed with Escape
}

QString DialogosQt::InputBox(const QString& pregunta, const QString& titulo, const QString& defecto) {
    bool ok = false;
    const QString texto = QInputDialog::getText(QApplication::activeWindow(), titulo, pregunta,
                                                QLineEdit::Normal, defecto, &ok);
    return ok ? texto : QString();
}

QString DialogosQt::AbrirArchivo(const QString& titulo, const QString& filtro) {
    return QFileDialog::getOpenFileName(QApplication::activeWindow(), titulo, {}, filtro);
}

QString DialogosQt::Frm_SoloRrut(const QString& curso) {
    return pantalla_solo_rut ? pantalla_solo_rut(curso) : QString();
}

QString DialogosQt::GuardarArchivo(const QString& titulo, const QString& filtro, const QString& nombre) {
    return QFileDialog::getSaveFileName(QApplication::activeWindow(), titulo, nombre, filtro);
}
