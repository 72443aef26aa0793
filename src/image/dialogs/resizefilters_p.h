#pragma once

#include <QComboBox>

/// The filters, in the order of `Zorv::ImageResizeFilter`.
QComboBox* makeFilterBox();
