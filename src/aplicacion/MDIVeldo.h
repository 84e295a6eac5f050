#pragma once
// The one top-level window: an MDI area with the menu tree and the toolbar. It holds no
// business logic: each command hands over to the navigator (Navegacion), which sets up the
// panel's record and opens the panel here.
#include <QHash>
#include <QMainWindow>
#include <functional>

class QAction;
class QMdiArea;
class QMenu;
class QToolBar;

class MDIVeldo : public QMainWindow {
    Q_OBJECT
public:
    explicit MDIVeldo(QWidget* parent = nullptr);
    ~MDIVeldo() override;

    // Recounts the records and switches the commands on: at the first activation, after a
    // restore, and when the navigator is told that a panel closed.
    void ActualizarMenus();
    // Switches the commands off while a panel is open (the navigator and the language chooser
    // call it).
    void DeshabilitarMenus();
    // Captions of menus, toolbar tips and title in the current language.
    void Anadir_captions();

    QMdiArea* area() const { return m_area; }
    // Shows a panel as a child window.
    void AbrirPanel(QWidget* panel);

protected:
    bool event(QEvent* e) override;
    void closeEvent(QCloseEvent* e) override;

private:
    QAction* accion(QMenu* menu, const char* nombre);
    QAction* separador(QMenu* menu, const char* nombre);
    void construirMenus();
    void construirBarra();
    void conectarComandos();
    void alDesplegar(QMenu* menu);
    void primeraActivacion();
    void abrirDeclaracionReciente(QAction* entrada);
    void botonBarra(const QString& etiqueta);
    void copiaDeSeguridad();
    void restaurarCopia();
    void asistenciaOnline();
    void descripcionAsistencia();
    void acercaDe();
    void preferencias();

    QMdiArea* m_area = nullptr;
    QToolBar* m_barra = nullptr;
    QList<QAction*> m_botones;  // the five toolbar buttons, in order
    QList<QAction*> m_recientes;  // d1 to d4
    QHash<QString, std::function<void()>> m_comandos;  // each menu entry's command, by name
    bool primeraVez = true;
};

// The main window of the run (null before start-up shows it).
MDIVeldo* VentanaMDI();
void EstablecerVentanaMDI(MDIVeldo* ventana);
