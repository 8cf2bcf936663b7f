// SPDX-License-Identifier: MIT
// Which contents of the settings file do the tests try, and what is read from them?
#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>
#include <QStringList>
#include <random>
#include <vector>

namespace settingsrows
{
/// The twelve values in the order of the file; numbers with the six digits that are stored.
inline const QStringList keys{"STYLE/style",
                              "LANGUAGE/lang",
                              "REGION/region",
                              "ZOOM/factor",
                              "ASTRONOMICAL_REFRACTION/latitude",
                              "ASTRONOMICAL_REFRACTION/longitude",
                              "ASTRONOMICAL_REFRACTION/P",
                              "ASTRONOMICAL_REFRACTION/T",
                              "ASTRONOMICAL_REFRACTION/enabledCorrect",
                              "ASTRONOMICAL_REFRACTION/P_unit",
                              "AXIS_CENTER/x",
                              "AXIS_CENTER/y"};
inline const QStringList defaults{"Color", "EN", "North", "1",   "39.9", "116.3",
                                  "101",   "10", "false", "kPa", "0",    "0"};
inline const QStringList numbers{keys[3], keys[4], keys[5], keys[6], keys[7], keys[10], keys[11]};
inline const QStringList texts{keys[0], keys[1], keys[2], keys[9]};

inline QStringList stored(const QString &path)
{
    const QSettings file(path, QSettings::IniFormat);
    QStringList values;
    for (const QString &key : keys)
        values.append(file.value(key).toString());
    return values;
}

inline QStringList with(const QString &key, const QString &value)
{
    QStringList values = defaults;
    values[keys.indexOf(key)] = value;
    return values;
}

inline QByteArray fileWith(const QString &key, const QByteArray &value)
{
    return '[' + key.section('/', 0, 0).toLatin1() + "]\n" + key.section('/', 1).toLatin1() + '=' +
           value + '\n';
}

/// A value as the file has it, and as it is read.
struct Value {
    QByteArray name, bytes;
    QString read;
};

/// For each of `numbers`.
inline const std::vector<Value> &numberValues()
{
    static const std::vector<Value> values = [] {
        std::vector<Value> all;
        const struct {
            const char *text, *number;
        } rows[] = {{"north", "0"},      {"", "0"},       {"nan", "nan"},    {"inf", "inf"},
                    {"-inf", "-inf"},    {"1e39", "inf"}, {"-1e39", "-inf"}, {"1e400", "inf"},
                    {"-1", "-1"},        {"0", "0"},      {"1e9", "1e+09"},  {"-1e9", "-1e+09"},
                    {"1e-30", "1e-30"},  {"1,5", "0"},    {"0x10", "0"},     {"\"0.5\"", "0.5"},
                    {"  0.75  ", "0.75"}};
        for (const auto &row : rows)
            all.push_back({row.text, row.text, row.number});
        return all;
    }();
    return values;
}

/// For each of `texts`; the region is "South" whatever it is, except "North".
inline const std::vector<Value> &textValues()
{
    static const std::vector<Value> values{
        {"nonsense", "nonsense", "nonsense"},
        {"empty", "", ""},
        {"a number", "1e9", "1e9"},
        {"a list", "a, b", ""},
        {"with its quotation open", "\"Mono", "Mono\n"},
        {"escapes", "\\x4d\\0\\n", QString("M") + QChar(0) + '\n'},
        {"100,000 letters", QByteArray(100000, 'x'), QString(100000, 'x')}};
    return values;
}

inline const QString truthKey = keys[8];
inline const std::vector<Value> &truthValues()
{
    static const std::vector<Value> values{
        {"true", "true", "true"},    {"TRUE", "TRUE", "true"},    {"1", "1", "true"},
        {"0", "0", "false"},         {"false", "false", "false"}, {"empty", "", "false"},
        {"maybe", "maybe", "false"}, {"nan", "nan", "false"},     {"a list", "a, b", "false"}};
    return values;
}

/// The values that are tried for one key.
inline const std::vector<Value> &valuesOf(const QString &key)
{
    return key == truthKey ? truthValues() : texts.contains(key) ? textValues() : numberValues();
}

struct Rubbish {
    QByteArray name, bytes;
};

/// Random bytes and damaged files; the same in every run.
inline std::vector<Rubbish> rubbish()
{
    std::vector<Rubbish> rows;
    std::mt19937 random(20240523);
    const auto byte = [&] { return char(random() & 0xFF); };
    for (int row = 0; row < 20; ++row) {
        QByteArray bytes;
        for (int i = 0; i < 1 << (row / 2); ++i)
            bytes.append(byte());
        rows.push_back({"random bytes " + QByteArray::number(row), bytes});
    }
    QByteArray whole;
    for (int i = 0; i < keys.size(); ++i)
        whole += fileWith(keys[i], defaults[i].toLatin1());
    for (int row = 0; row < 40; ++row) {
        QByteArray bytes = whole;
        for (int change = 0; change <= row; ++change)
            bytes[int(random() % unsigned(bytes.size()))] = byte();
        rows.push_back({"damaged in " + QByteArray::number(row + 1) + " places", bytes});
    }
    return rows;
}
} // namespace settingsrows
