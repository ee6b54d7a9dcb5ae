// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/Evento.h"
#include "shell/frame/Leccion.h"

#include <QKeySequence>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <utility>

class PaginaDeLeccion;
class PanelDePasos;
class PanelesDeTemas;
class QKeyEvent;
class QAbstractButton;
class QTabBar;
class QToolButton;

/// The frame of every lesson window: a strip of topics (`tsTema`), one panel a topic (`PanelFicha`)
/// of which the selected one is in front, the introduction page (`wbIntro`), help on F1, and the
/// stop line that its computations share. Closed during a run, the window takes the run with it.
class FormLeccion : public QWidget
{
    Q_OBJECT

public:
    /// `pagina` is the file name of the lesson's page in the folder Doc.
    explicit FormLeccion(const QString &pagina, QWidget *padre = nullptr);

    /// The path of the help page, in Spanish: the working folder, then "\Doc\" and the page.
    QString URL() const;

    /// Opens the help page in the system's browser, in the language of the interface where it has
    /// been translated, at the section of the topic in front.
    void muestraAyuda() const;

    /// The topics as the page knows them: which sections tell about them.
    void ponTemasDePagina(const QList<TemaDePagina> &temas) { m_temasDePagina = temas; }

    /// The introduction; null for a lesson that has none.
    PaginaDeLeccion *pagina() const { return m_introduccion; }

    /// Brings a topic to the front; false for a key that no topic has.
    bool abreTema(const QString &clave);

    /// The captions of the topics, as the strip shows them, and which of them is in front.
    QStringList temas() const;
    int temaAlFrente() const;
    QString claveAlFrente() const;

    /// Brings a topic to the front by its place in the strip and gives it the keyboard; nothing
    /// where there is none.
    void vaATema(int indice);
    /// To the next topic (1) or the one before (-1), round the strip, where the keyboard stays if
    /// it is there.
    void vaATemaVecino(int sentido);

    /// Brings a tab within the topic in front to the front and gives it the keyboard; false where
    /// there is none.
    bool abrePestana(int indice);

    /// The keys that the frame answers wherever in the lesson the keyboard is, and what they do, in
    /// the interface's language.
    QList<std::pair<QKeySequence, QString>> teclas() const;

    /// Writes into a control of the lesson (Relleno), and brings the tab to the front that holds
    /// it. False where there is no such control and where it does not take the text.
    bool rellenaCampo(const QString &campo, const QString &valor);

    /// Shows a way back to the page that led here, by a button and by Alt+Left, until it is taken.
    /// Empty where no page led here.
    void ofreceVuelta(const std::function<void()> &vuelve);

    /// Gives the topic of questions a button that goes on to more exercises.
    void ofrecePracticas(const std::function<void()> &practica);

    /// Closes the window as its close button would.
    void cierra();

    /// Closes it without asking, because the user has been asked or cannot be.
    void cierraSinPreguntar();

    /// Stops the run in progress as its stop button would; nothing without one.
    void detenCorrida();

    /// The stop line that the runs of the lesson's panels share.
    const std::shared_ptr<Parada> &parada() const { return m_parada; }

    /// Whether the window may be closed: asks about unsaved work where there is some, and waits for
    /// the answer.
    virtual Tarea<bool> puedeCerrarse();

    /// Keeps unsaved work where the next start finds it, without asking: the session ends. Brings
    /// the copies of the window's work up to date. Throws ErrorEjecucion when one cannot be
    /// written.
    virtual void guardaLoPendiente();

Q_SIGNALS:
    /// The user has closed the window; it is not to be shown again.
    void descargada();
    /// A topic came, went, or came to the front.
    void cambianTemas();

protected:
    /// Adds a topic behind the others. The panel becomes the window's and is named PanelFicha_<n>,
    /// counted from 0. `pasos` shows why its results hold, beside or below it.
    void agregaTema(const QString &rotulo, const QString &clave, QWidget *panel,
                    PanelDePasos *pasos = nullptr);

    /// For a tool whose steps are seen when they are asked for: they are hidden at first, and apart
    /// from those of other windows remembered under that name. Before the first topic.
    void escondePasos(const QString &clave);

    /// Takes a topic off the strip; its panel stays as it is, and may be added again. Nothing for a
    /// key that no topic has.
    void quitaTema(const QString &clave);
    bool tieneTema(const QString &clave) const { return indiceDeTema(clave) >= 0; }

    /// The first topic of every lesson: its page of introduction.
    void agregaIntroduccion(const QString &rotulo);

    void closeEvent(QCloseEvent *suceso) override;
    void showEvent(QShowEvent *suceso) override;
    bool eventFilter(QObject *objeto, QEvent *suceso) override;

private:
    struct Tecla;
    static const QList<Tecla> &teclasDelMarco();
    const Tecla *teclaPara(const QKeyEvent &suceso, const QWidget &control) const;
    void recuerdaDivisores();
    int indiceDeTema(const QString &clave) const;
    QString seccionAlFrente() const;
    bool introduccionAlFrente() const;
    void tsTema_Click(int indice);
    void preparaVuelta();
    void cmdVolver_Click();
    void cmdPasos_Click(bool visibles);
    void teclaDePasos();
    PanelDePasos *pasosALaVista() const;
    void preparaPasos();
    void preparaPracticas();
    void muestraPasos();
    Tarea<> pideCierre();
    QAbstractButton *botonEnMarcha() const;
    QWidget *marco();

    QString m_pagina;
    QTabBar *m_tsTema;
    QToolButton *m_cmdPasos;
    QToolButton *m_cmdPracticas;
    bool m_hayPracticas = false;
    bool m_vista = false;
    QString m_claveDePasos; ///< of the setting whether steps are seen
    PanelesDeTemas *m_paneles;
    QToolButton *m_cmdVolver;
    PaginaDeLeccion *m_introduccion = nullptr;
    QList<TemaDePagina> m_temasDePagina;
    std::function<void()> m_vuelve;
    std::shared_ptr<Parada> m_parada = std::make_shared<Parada>();
    bool m_cierrePermitido = false;
    bool m_enCierre = false;
    bool m_preguntando = false;
    TareasDeVentana m_tareas{this, m_parada};
};
