// A registry of the Qt Test classes in a test program.
#pragma once

#include <QObject>

#include <functional>
#include <map>
#include <memory>
#include <string>

namespace tunedex::test {

using TestClassMap = std::map<std::string, std::function<std::unique_ptr<QObject>()>>;

inline TestClassMap& TestClasses() {
    static TestClassMap classes;
    return classes;
}

// Registers a test class. Define one constant per class.
template <typename T> struct TestClass {
    explicit TestClass(const char* name) {
        TestClasses()[name] = [] { return std::make_unique<T>(); };
    }
};

} // namespace tunedex::test
