// What the page's scripts are held to; with no names but the browser's, the script's own, and those it says it is given.
import js from '@eslint/js';
import globals from 'globals';

export default [
  js.configs.recommended,
  {
    linterOptions: {reportUnusedDisableDirectives: 'error'},
    languageOptions: {
      sourceType: 'script',
      // A window has these too; where they are meant to be a script's own, nothing else would tell that they are not.
      globals: {...globals.browser, event: 'off', length: 'off', name: 'off', parent: 'off', status: 'off', top: 'off'},
    },
    rules: {
      'array-callback-return': 'error',
      'curly': 'error',
      'default-case-last': 'error',
      'eqeqeq': 'error',
      'no-else-return': 'error',
      'no-eval': 'error',
      'no-implicit-globals': 'error',
      'no-implied-eval': 'error',
      'no-lonely-if': 'error',
      'no-shadow': 'error',
      'no-throw-literal': 'error',
      'no-unneeded-ternary': 'error',
      'no-unused-expressions': ['error', {allowShortCircuit: true}],
      'no-use-before-define': 'error',
      'no-useless-rename': 'error',
      'no-useless-return': 'error',
      'no-var': 'error',
      'object-shorthand': 'error',
      'prefer-arrow-callback': 'error',
      'prefer-const': 'error',
      'prefer-object-spread': 'error',
      'prefer-rest-params': 'error',
      'prefer-spread': 'error',
      'prefer-template': 'error',
      'require-await': 'error',
      'strict': ['error', 'global'],
    },
  },
];
