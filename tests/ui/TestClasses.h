// The Qt Test classes of a test program, by name.
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

// Stands as a constant beside each test class.
template <typename T> struct TestClass {
    explicit TestClass(const char* name) {
        TestClasses()[name] = [] { return std::make_unique<T>(); };
    }
};

} // namespace tunedex::test
