// "Acerca de...": the product's name, version and contact lines, scrolling.
#pragma once

#include <QWidget>

class QLabel;

class ACERCA_de : public QWidget {
    Q_OBJECT
public:
    explicit ACERCA_de(QWidget* padre = nullptr);

private:
    void Avanza();
    QLabel* texto_;
    int desplazamiento_ = 0;
};
