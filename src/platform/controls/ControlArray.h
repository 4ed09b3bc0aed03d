#pragma once

#include "platform/base/RuntimeError.h"
#include "platform/controls/Controls.h"

#include <functional>
#include <map>
#include <memory>
#include <utility>

namespace lineforge
{

// Controls under one name, told apart by an index: `Shape2(1)`. Element 0 is the pattern of the design, here only the
// way in which an element is made; elements from 1 on come and go while the program runs.
template <class T>
class ControlArray
{
public:
    using Pattern = std::function<std::unique_ptr<T>(Container& parent, const QString& name)>;

    ControlArray(Container& parent, QStringView name, Pattern pattern)
        : parent_(parent), name_(name.toString()), pattern_(std::move(pattern))
    {
    }

    // Error 360 when there is an element of that index.
    T& Load(int index)
    {
        if (elements_.contains(index))
            throw RuntimeError(ErrorNumber::ArrayElementLoaded);
        std::unique_ptr<T>& element = elements_[index];
        element = pattern_(parent_, QStringLiteral("%1(%2)").arg(name_).arg(index));
        if (parent_.Added)
            parent_.Added(*element);
        return *element;
    }

    // Error 340 when there is none.
    void Unload(int index)
    {
        T& element = (*this)[index];
        if (parent_.Removed)
            parent_.Removed(element);
        elements_.erase(index);
    }

    T& operator[](int index)
    {
        const auto found = elements_.find(index);
        if (found == elements_.end())
            throw RuntimeError(ErrorNumber::ArrayElementMissing);
        return *found->second;
    }

    std::size_t Count() const { return elements_.size(); }

private:
    Container& parent_;
    QString name_;
    Pattern pattern_;
    std::map<int, std::unique_ptr<T>> elements_;
};

} // namespace lineforge
