// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QPainter;

/// The scenes of the films. Each draws the moment `t` (0 to 1) of its film on the square of
/// Drawing.h. "Seamless" scenes are the same at 0 and at 1, so that the film can run round and
/// round.

/// The program's arms: a spark runs through the graph N on the shield. Seamless.
void drawShield(QPainter &painter, double t);

/// Two gear wheels that mesh. Seamless.
void drawGearWheels(QPainter &painter, double t);

/// A light bulb lights up (right answer).
void drawLightBulb(QPainter &painter, double t);

/// A smiling star among confetti (right answer).
void drawStar(QPainter &painter, double t);

/// A cross shakes its head and turns into "again" (wrong answer).
void drawTryAgain(QPainter &painter, double t);

/// A question mark that wobbles (wrong answer).
void drawQuestionMark(QPainter &painter, double t);

/// A rubber wipes a scribble away (wrong answer).
void drawEraser(QPainter &painter, double t);
