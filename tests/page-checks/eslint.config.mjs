// The rules for the script of HTML5 pages. It is one script without modules, so all names that it uses are its own
// or the browser's.
const browser = ["document", "getSelection", "getComputedStyle", "history", "IntersectionObserver", "location", "matchMedia",
  "NodeFilter", "performance", "ResizeObserver", "setTimeout", "clearTimeout", "URLSearchParams", "window"];

export default [{
  files: ["**/*.js"],
  languageOptions: {
    ecmaVersion: 2022,
    sourceType: "script",
    globals: Object.fromEntries(browser.map(name => [name, "readonly"]))
  },
  linterOptions: {reportUnusedDisableDirectives: "error"},
  rules: {
    "array-callback-return": "error",
    "constructor-super": "error",
    "curly": "error",
    "eqeqeq": "error",
    "for-direction": "error",
    "getter-return": "error",
    "no-cond-assign": "error",
    "no-const-assign": "error",
    "no-constant-condition": "error",
    "no-dupe-class-members": "error",
    "no-dupe-keys": "error",
    "no-eval": "error",
    "no-fallthrough": "error",
    "no-implied-eval": "error",
    "no-redeclare": "error",
    "no-shadow": "error",
    "no-undef": "error",
    "no-unreachable": "error",
    "no-unsafe-optional-chaining": "error",
    "no-unused-expressions": "error",
    "no-unused-vars": "error",
    "no-useless-escape": "error",
    "no-var": "error",
    "object-shorthand": "error",
    "prefer-const": "error",
    "quotes": ["error", "double", {avoidEscape: true}],
    "semi": "error",
    "strict": ["error", "global"],
    "use-isnan": "error",
    "valid-typeof": "error"
  }
}];
