#pragma once

#include <MaltoConfiguration/store/ConfValue.h>

#include <QByteArray>

#include <vector>

/// A value and its JSON text, as Qt 5.15 writes it.
struct GoldenValue
{
    QByteArray name;
    ConfValue value;
    QByteArray text;
    QByteArray again; ///< empty if `text` is read as the same value; else what is written after it
};

/// Values of every type.
const std::vector<GoldenValue> &goldenValues();

/// JSON text that a user or another version may have written for a value of a type, and what is
/// written after reading it.
struct GoldenInput
{
    ConfValue::ConfType type;
    QByteArray text;
    QByteArray written;
};

const std::vector<GoldenInput> &goldenInputs();
