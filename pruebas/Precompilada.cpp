// What is precompiled for the tests needs a source to belong to.
