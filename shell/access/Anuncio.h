// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>

class QWidget;

/// Tells screen readers that what a control says has changed, where the keyboard is elsewhere: a
/// verdict, a result, the current step. A label says its text, any other control its name and its
/// value; one out of sight says nothing.
void anuncia(QWidget *control);

/// Has screen readers say a sentence, as a notification.
void anuncia(const QString &frase);

/// Who hears what is said even where no reader runs; nobody at first.
using Oyente = std::function<void(const QString &frase)>;
void ponOyente(Oyente oyente);
