#pragma once

// A flag as an object, for collections and interfaces that carry objects.
class CBoolean {
public:
    void setBoolean(bool value) { flag = value; }
    bool getBoolean() const { return flag; }

private:
    bool flag = false;
};
