// MdiMain, "Principal": the one main window. Its menu sets shared flags and shows screens
// inside the window; closing it asks first, "Salir" does not.
#pragma once

#include <QMainWindow>
#include <QMap>
#include <QPointer>
#include <functional>

class QMdiArea;
class QMdiSubWindow;
class QAction;
class QDialog;

class MdiMain : public QMainWindow {
    Q_OBJECT
public:
    explicit MdiMain(QWidget* padre = nullptr);
    ~MdiMain() override;

    // Shows a screen by name: created when missing, brought to the front when open.
    QWidget* Muestra_Pantalla(const QString& nombre);
    // The screen open under that name, or null.
    QWidget* Pantalla(const QString& nombre) const;
    // Shows a screen modally and waits for it (the rut and form amendment).
    void Muestra_Modal(const QString& nombre);
    // Unloads a screen if it is open.
    void Descarga(const QString& nombre);
    // The address of a web-link entry, "" for other entries.
    static QString Enlace(const QString& control);
    QAction* Accion(const QString& control) const { return acciones_.value(control); }

    // Runs the command of a menu entry: its flags, then its screen.
    void Ejecuta(const QString& control);
    void mnu_salir_Click();
    bool Salio() const { return salio_; }

protected:
    void closeEvent(QCloseEvent* evento) override;
    // A screen that closes itself takes its frame in the main window with it.
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void Construye_Menu();

    QMdiArea* area_;
    QMap<QString, QAction*> acciones_;
    QMap<QString, std::function<QWidget*()>> fabricas_;
    QMap<QString, std::function<QDialog*()>> modales_;
    QMap<QString, QPointer<QMdiSubWindow>> abiertas_;  // null once closed
    bool salio_ = false;
};
