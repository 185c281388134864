// Whether the person wants things to move.
const question = window.matchMedia('(prefers-reduced-motion: reduce)');

export const movesLittle = () => question.matches;
