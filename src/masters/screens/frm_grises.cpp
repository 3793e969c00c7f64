// Frm_Grises, "Mantenedor de Grisis".
#include "masters/screens/frm_grises.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>

#include "app/estado.h"
#include "platform/screens/controles.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"
#include "store/contadores.h"

Frm_Grises::Frm_Grises(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("Frm_Grises"));
    setWindowTitle(QStringLiteral("Mantenedor de Grisis"));
    TxtNumColor = Caja(this, QStringLiteral("TxtNumColor"));
    TxtNumColor->setMaxLength(3);
    // Digits and backspace pass; Enter paints the sample; any other key is dropped.
    Filtra_Teclas(TxtNumColor, [this](int c) {
        if (c == 13) Ejecutar_Comando([this] { Pinta_Muestra(); });
        return (c >= '0' && c <= '9') || c == 8 ? c : 0;
    });
    auto* marco = new QGroupBox(QStringLiteral("Visualizacion Color"), this);
    TxtResult = Caja(marco, QStringLiteral("TxtResult"));
    TxtResult->setReadOnly(true);
    TxtResult->setMinimumHeight(60);
    (new QVBoxLayout(marco))->addWidget(TxtResult);

    auto* capa = new QGridLayout(this);
    capa->addWidget(new QLabel(QStringLiteral("Número de gris"), this), 0, 0);
    capa->addWidget(TxtNumColor, 0, 1);
    capa->addWidget(Boton(this, QStringLiteral("XPButton1"), QStringLiteral("Ver"),
                          [this] { XPButton1_Click(); }),
                    0, 2);
    capa->addWidget(marco, 1, 0, 1, 3);
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(Boton(this, QStringLiteral("XPButAceptar"), QStringLiteral("Aceptar"),
                             [this] { XPButAceptar_Click(); }));
    botones->addWidget(Boton(this, QStringLiteral("XPButCancelar"), QStringLiteral("Cancelar"),
                             [this] { close(); }));
    capa->addLayout(botones, 2, 0, 1, 3);
    resize(360, 220);
    Ejecutar_Comando([this] {
        TxtNumColor->setText(QString::number(Func_Indice_Color()));
        Pinta_Muestra();
    });
}

void Frm_Grises::Pinta_Muestra() {
    const int gris = std::clamp(static_cast<int>(Val(TxtNumColor->text())), 0, 255);
    QPalette paleta = TxtResult->palette();
    paleta.setColor(QPalette::Base, QColor(gris, gris, gris));
    TxtResult->setPalette(paleta);
}

void Frm_Grises::XPButton1_Click() {
    if (!TxtNumColor->text().isEmpty()) Pinta_Muestra();
}

// The only limit is the test for 0: 256 to 999 are saved as they are.
void Frm_Grises::XPButAceptar_Click() {
    const QString titulo = QStringLiteral("Mantenedor de Grises");
    const QString texto = TxtNumColor->text();
    if (texto.trimmed().isEmpty()) {
        dialogos().MsgBox(QStringLiteral("El número de gris esta en blanco"), vbExclamation,
                          titulo);
        return;
    }
    if (Val(texto) == 0) {
        dialogos().MsgBox(QStringLiteral("El número de gris deber variar entre 1 y 255"),
                          vbExclamation, titulo);
        return;
    }
    estado().BaseDatos->Execute(
        QStringLiteral(" update indice_general set  valor_indice  = ? where tipo_indice = 'COLOR'"),
        {texto});
    estado().Nivel_Gris = CInt(Val(texto));
    dialogos().MsgBox(QStringLiteral("El número ha sido modificado"), vbInformation, titulo);
}
