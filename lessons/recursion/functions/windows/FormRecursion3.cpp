#include "lessons/recursion/functions/windows/FormRecursion3.h"

#include "lessons/recursion/functions/windows/FormRecursion3Ackermann.h"
#include "lessons/recursion/functions/windows/FormRecursion3Capicuas.h"
#include "lessons/recursion/functions/windows/FormRecursion3Hailstone.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"

#include <QAbstractButton>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

FormRecursión3::FormRecursión3(QWidget *padre)
    : FormLeccion(u"Recursión3.html"_s, padre),
      m_pestanas(new QTabWidget),
      m_ackermann(new FormRecursion3Ackermann(corrida(), m_pestanas)),
      m_hailstone(new FormRecursion3Hailstone(corrida(), m_pestanas)),
      m_capicuas(new FormRecursion3Capicuas(corrida(), m_pestanas))
{
    setObjectName(u"FormRecursión3"_s);
    setWindowTitle(Traduce(u"Funciones recursivas"_s));
    setWindowIcon(Icono(u"FUNREC"_s));
    m_pestanas->setObjectName(u"SSTab1"_s);
    // Tabs within a topic: without a frame of their own, which would stand in the frame of the
    // topic.
    m_pestanas->setDocumentMode(true);
    m_pestanas->setAccessibleName(Traduce(u"Funciones"_s));
    m_pestanas->tabBar()->setAccessibleName(m_pestanas->accessibleName());
    m_pestanas->addTab(m_ackermann, Traduce(u"Ackermann"_s));
    m_pestanas->addTab(m_hailstone, Traduce(u"Hailstone"_s));
    m_pestanas->addTab(m_capicuas, Traduce(u"Capicúas"_s));

    auto *panel = new QWidget(this);
    auto *marco = new QVBoxLayout(panel);
    marco->setContentsMargins(0, Aspecto::Espacio, 0, 0);
    marco->addWidget(m_pestanas);
    agregaIntroduccion(u"Introducción"_s);
    agregaTema(u"Funciones"_s, u"funciones"_s, panel);
}

/// The one in sight first: more than one may be running, each inside the yield of another.
QAbstractButton *FormRecursión3::botonDeParada() const
{
    QAbstractButton *botones[] = {m_ackermann->botonDeParada(), m_hailstone->botonDeParada(),
                                  m_capicuas->botonDeParada()};
    QAbstractButton *alguno = nullptr;
    for (QAbstractButton *boton : botones) {
        if (boton && m_pestanas->currentWidget()->isAncestorOf(boton))
            return boton;
        if (boton)
            alguno = boton;
    }
    return alguno;
}
