#pragma once

#include "FormValues.h"

#include <MaltoConfiguration/manage/ConfItem.h>

#include <memory>

/// One value of a type with a form, and the operations of a host on settings of this type.
class FormCase
{
public:
    /// A variable of the type.
    struct Variable
    {
        virtual ~Variable() = default;
        virtual void reserve(ConfStorage &store, const QString &key) = 0;
        virtual MtConf::ConfItem item(const QString &page, const QString &itemName,
                                      const QString &subName) = 0;
        virtual void setInStore(ConfStorage &store, const QString &key) const = 0;
        virtual bool hasValueInStore(const ConfStorage &store, const QString &key) const = 0;
        /// Whether the variable has the value of the case.
        virtual bool hasValue() const = 0;
        /// Whether the variable is as it was constructed.
        virtual bool isInitial() const = 0;
    };

    FormCase(const QByteArray &title, const QByteArray &jsonText) : name(title), text(jsonText) {}
    virtual ~FormCase() = default;
    Q_DISABLE_COPY(FormCase)

    virtual std::unique_ptr<Variable> variable() const = 0;
    virtual bool isInitial() const = 0;
    QJsonValue json() const { return jsonOfText(text); }

    const QByteArray name;
    const QByteArray text; ///< the JSON of the value
};

template<class T> class TypedFormCase : public FormCase
{
public:
    TypedFormCase(const QByteArray &title, const T &value, const QByteArray &jsonText)
        : FormCase(title, jsonText), mValue(value)
    {
    }

    std::unique_ptr<Variable> variable() const override
    {
        return std::make_unique<TypedVariable>(mValue);
    }
    bool isInitial() const override { return isSameForm(mValue, T()); }

private:
    struct TypedVariable : Variable
    {
        explicit TypedVariable(const T &caseValue) : expected(caseValue) {}

        void reserve(ConfStorage &store, const QString &key) override
        {
            store.reserveConf(key, &content);
        }
        MtConf::ConfItem item(const QString &page, const QString &itemName,
                              const QString &subName) override
        {
            return MtConf::ConfItem(&content, page, itemName, subName);
        }
        void setInStore(ConfStorage &store, const QString &key) const override
        {
            store.set(key, expected);
        }
        bool hasValueInStore(const ConfStorage &store, const QString &key) const override
        {
            return isSameForm(store.get<T>(key), expected);
        }
        bool hasValue() const override { return isSameForm(content, expected); }
        bool isInitial() const override { return isSameForm(content, T()); }

        const T expected;
        T content = T();
    };

    const T mValue;
};

/// Returns a case for each value of `visitFormValues`.
inline const std::vector<std::unique_ptr<FormCase>> &formCases()
{
    static const auto sCases = [] {
        std::vector<std::unique_ptr<FormCase>> cases;
        visitFormValues([&](const char *name, const auto &value, const char *text) {
            using T = std::decay_t<decltype(value)>;
            cases.push_back(std::make_unique<TypedFormCase<T>>(name, value, text));
        });
        return cases;
    }();
    return sCases;
}
