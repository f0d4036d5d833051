import js from '@eslint/js';
import globals from 'globals';

export default [
  js.configs.recommended,
  {
    rules: {
      eqeqeq: 'error',
      'no-var': 'error',
      'prefer-const': 'error',
      'no-unused-vars': ['error', { caughtErrors: 'all' }],
    },
  },
  {
    files: ['page/**'],
    languageOptions: { globals: { ...globals.browser, ...globals.serviceworker } },
  },
  {
    files: ['tests/**', 'tools/**'],
    languageOptions: { globals: { ...globals.node, ...globals.browser } },
  },
  // What emscripten's linker copies into the module: its own scope, and its older grammar.
  {
    files: ['core/**', 'voice/**'],
    languageOptions: {
      sourceType: 'script',
      globals: {
        ...globals.worker,
        mergeInto: 'readonly',
        LibraryManager: 'readonly',
        Module: 'readonly',
        HEAP16: 'readonly',
        HEAP32: 'readonly',
        HEAPU8: 'readonly',
        UTF8ToString: 'readonly',
      },
    },
  },
];
