// Moments as the inspector writes them.
const two = (number) => String(number).padStart(2, '0');

// 14:03:07.250
export const exact = (seconds) => {
  const date = new Date(seconds * 1000);
  const clock = [date.getHours(), date.getMinutes(), date.getSeconds()].map(two).join(':');
  return `${clock}.${String(date.getMilliseconds()).padStart(3, '0')}`;
};

// 21 Nov, 14:03
export const dayAndTime = (seconds) =>
  new Date(seconds * 1000).toLocaleString([], { day: 'numeric', month: 'short', hour: '2-digit', minute: '2-digit' });
