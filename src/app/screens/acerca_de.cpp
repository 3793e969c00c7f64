// The about screen.
#include "app/screens/acerca_de.h"

#include <QLabel>
#include <QTimer>

ACERCA_de::ACERCA_de(QWidget* padre) : QWidget(padre), texto_(new QLabel(this)) {
    setWindowTitle(QStringLiteral("Acerca de..."));
    setFixedSize(420, 260);
    texto_->setAlignment(Qt::AlignHCenter);
    texto_->setText(QStringLiteral(
        "<h2>Sistema ZORTA</h2><p>Corrector de pruebas por lectura óptica</p><p>Versión 0.1</p>"
        "<p>Corrige hojas de respuesta escaneadas, calcula notas de 1.0 a 7.0<br>y estima puntajes PSU y "
        "SIMCE.</p><p>Soporte: soporte@zorta.cl</p>"));
    texto_->setFixedWidth(width());
    texto_->adjustSize();
    auto* reloj = new QTimer(this);
    connect(reloj, &QTimer::timeout, this, &ACERCA_de::Avanza);
    reloj->start(40);
    Avanza();
}

void ACERCA_de::Avanza() {
    // The text rises from the bottom edge and starts again once it has left the top.
    if (desplazamiento_ > height() + texto_->height()) desplazamiento_ = 0;
    texto_->move(0, height() - desplazamiento_++);
}
