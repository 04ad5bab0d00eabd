// The tree that shows the trace of a run.
#pragma once

#include <QTreeView>

class CalculationModel;

/// `model` is borrowed. Columns are as wide as equations usually are; a user may widen them.
QTreeView* makeCalculationView(CalculationModel& model);
